#include "ShownLines.h"

#include "ClipPath.h"
#include "ElidedLine.h"
#include "EmojiPicture.h"
#include "HighlightWords.h"
#include "LaidOutText.h"
#include "ParagraphText.h"

#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>

#include <algorithm>
#include <cmath>
#include <optional>

namespace kestro {

namespace {

QVector<QTextLayout::FormatRange> FormatsBetween(const QVector<QTextLayout::FormatRange>& formats,
                                                 int start, int end)
{
    QVector<QTextLayout::FormatRange> result;
    const auto endsBefore = [](const QTextLayout::FormatRange& range, int position) {
        return range.start + range.length <= position;
    };
    auto range = std::lower_bound(formats.begin(), formats.end(), start, endsBefore);
    for (; range != formats.end() && range->start < end; ++range) {
        const int first = std::max(range->start, start);
        result.push_back({first - start, range->start + range->length - first, range->format});
    }
    return result;
}

bool HasVisibleTextFrom(const QString& text, int position)
{
    return std::any_of(text.begin() + position, text.end(),
                       [](QChar character) { return !character.isSpace(); });
}

// Whether anything visible follows. There is no ellipsis for spaces and line ends,
// because readers do not miss them.
bool HasVisibleTextFrom(const LaidOutText& text, int paragraph, int position)
{
    const int count = text.ParagraphCount();
    for (; paragraph < count; ++paragraph, position = 0) {
        if (HasVisibleTextFrom(text.Paragraph(paragraph).text, position))
            return true;
    }
    return false;
}

// The end of the line that starts at `start` if it does not wrap.
int ForcedLineEnd(const QString& text, int start)
{
    const int end = text.indexOf(QChar::LineSeparator, start);
    return end < 0 ? text.size() : end;
}

// The natural width of a line that did not wrap includes the spaces at its end.
// They are next to each other at one of its edges, whatever their direction.
qreal TrailingSpaceWidth(const QString& text, const QTextLine& line)
{
    const int end = line.textStart() + line.textLength();
    int textEnd = end;
    while (textEnd > line.textStart() && text.at(textEnd - 1).isSpace())
        --textEnd;
    // cursorToX() is slow on long lines, and most have no trailing space.
    if (textEnd == end)
        return 0;
    return std::abs(line.cursorToX(end) - line.cursorToX(textEnd));
}

// An estimate of how many characters of the line fit into `width`.
int ExpectedLength(const QTextLine& line, qreal width)
{
    const qreal share = std::min(1.0, width / std::max(1.0, line.naturalTextWidth()));
    return static_cast<int>(line.textLength() * share);
}

// The relative luminance of a colour, from 0 for black to 1 for white.
qreal Luminance(const QColor& color)
{
    const auto linear = [](qreal part) { return std::pow(part, 2.2); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

// Black on light backgrounds and white on dark ones. Translucent backgrounds are
// assumed to be on white. The threshold has the same contrast to black and white.
QColor TextColorOn(const QBrush& background)
{
    const qreal alpha = background.color().alphaF();
    const qreal light = alpha * Luminance(background.color()) + (1 - alpha);
    return light > 0.179 ? Qt::black : Qt::white;
}

// The format of highlighted text, for a whole line.
QTextLayout::FormatRange HighlightFormat(const QBrush& background, const QTextLine& line)
{
    QTextLayout::FormatRange range;
    range.start = line.textStart();
    range.length = line.textLength();
    range.format.setForeground(TextColorOn(background));
    // The backgrounds of spans would cover the highlight.
    range.format.setBackground(Qt::NoBrush);
    return range;
}

} // namespace

// Makes the lines of a text, up to the line limit.
class ShownLines::Builder {
public:
    Builder(const LaidOutText& text, int maxCount, bool elide, bool hasMoreText,
            std::vector<Line>& lines)
        : text_(text)
        , hasWidth_(text.Width() >= 0)
        , maxCount_(maxCount)
        , elide_(elide)
        , hasMoreText_(hasMoreText)
        , lines_(lines)
    {
    }

    void AddLines()
    {
        const int count = text_.ParagraphCount();
        for (paragraphIndex_ = 0; paragraphIndex_ < count && !IsFull(); ++paragraphIndex_)
            AddLinesOf(text_.Paragraph(paragraphIndex_));
    }

private:
    bool IsFull() const { return maxCount_ > 0 && static_cast<int>(lines_.size()) >= maxCount_; }

    void AddLinesOf(const LaidOutParagraph& paragraph)
    {
        const int count = paragraph.layout->lineCount();
        for (int i = 0; i < count && !IsFull(); ++i) {
            AddLine(paragraph.layout->lineAt(i), paragraph);
            if (elide_)
                ElideIfNeeded(paragraph);
        }
    }

    void AddLine(const QTextLine& line, const LaidOutParagraph& paragraph)
    {
        Line shown;
        shown.line = line;
        shown.origin = paragraph.origin + QPointF(0, shiftDown_);
        shown.rect = TextRect(line, shown.origin);
        shown.alignment = paragraph.layout->textOption().alignment();
        shown.layoutStart = paragraph.position;
        lines_.push_back(std::move(shown));
    }

    // Elides the line that was added last.
    void ElideIfNeeded(const LaidOutParagraph& paragraph)
    {
        const QTextLine& line = lines_.back().line;
        const bool isCut = IsCutAt(paragraph, line.textStart() + line.textLength());
        if (isCut || IsTooWide(paragraph, line))
            Elide(paragraph, isCut);
    }

    bool IsCutAt(const LaidOutParagraph& paragraph, int position) const
    {
        const bool isLast = paragraph.isLast && position == paragraph.text.size();
        return (IsFull() && HasVisibleTextFrom(text_, paragraphIndex_, position))
            || (hasMoreText_ && (IsFull() || isLast));
    }

    // Elides the line that was added last. `isCut`: text that follows the line is
    // not shown. Otherwise the line is too wide.
    void Elide(const LaidOutParagraph& paragraph, bool isCut)
    {
        Line& shown = lines_.back();
        const QTextLine line = shown.line;
        const int start = line.textStart();
        const int end = isCut ? ForcedLineEnd(paragraph.text, start) : start + line.textLength();
        const std::optional<qreal> width = AvailableWidth(paragraph, line);

        ElisionSource source;
        source.text = paragraph.text.mid(start, end - start);
        source.formats = FormatsBetween(paragraph.formats, start, end);
        source.font = text_.Font();
        source.option = paragraph.layout->textOption();
        if (width)
            source.expectedLength = ExpectedLength(line, *width);
        source.isTooWide = !isCut;

        shown.elided = std::make_unique<ElidedLine>(std::move(source), width);
        shown.line = shown.elided->Line();
        shown.layoutStart += start;
        shown.origin += line.position();
        shown.rect = TextRect(shown.line, shown.origin);
        shiftDown_ += shown.line.height() - line.height();
    }

    bool IsTooWide(const LaidOutParagraph& paragraph, const QTextLine& line) const
    {
        const std::optional<qreal> width = AvailableWidth(paragraph, line);
        return width && line.naturalTextWidth() > *width
            && line.naturalTextWidth() - TrailingSpaceWidth(paragraph.text, line) > *width;
    }

    // QTextLine::width() may be larger, because it grows with a text that is too
    // wide.
    std::optional<qreal> AvailableWidth(const LaidOutParagraph& paragraph,
                                        const QTextLine& line) const
    {
        if (!hasWidth_)
            return std::nullopt;
        const qreal left = paragraph.layout->position().x() + line.x();
        return std::max(0.0, paragraph.right - left);
    }

    static QRectF TextRect(const QTextLine& line, const QPointF& origin)
    {
        return line.naturalTextRect().translated(origin);
    }

    const LaidOutText& text_;
    const bool hasWidth_;
    const int maxCount_;
    const bool elide_;
    const bool hasMoreText_;
    std::vector<Line>& lines_;
    int paragraphIndex_ = 0;
    // How much lower the next line is than in the text's own layout. Elided lines can
    // be higher or lower than the lines there: an ellipsis can remove tall text from
    // its line or bring some in.
    qreal shiftDown_ = 0;
};

ShownLines::ShownLines() = default;
ShownLines::~ShownLines() = default;
ShownLines::ShownLines(ShownLines&&) noexcept = default;
ShownLines& ShownLines::operator=(ShownLines&&) noexcept = default;

ShownLines::ShownLines(const LaidOutText& text, int maxCount, bool elide, bool hasMoreText)
{
    if (!text.IsEmpty())
        Builder(text, maxCount, elide, hasMoreText, lines_).AddLines();

    const bool hasWidth = text.Width() >= 0;
    const qreal width = hasWidth ? text.Width() : WidestLine();
    if (!hasWidth)
        AlignLinesIn(width);
    const qreal top = lines_.empty() ? 0 : lines_.front().rect.top();
    const qreal bottom = lines_.empty() ? 0 : lines_.back().rect.bottom();
    boundingRect_ = QRectF(0, top, width, bottom - top);
}

qreal ShownLines::WidestLine() const
{
    qreal width = 0;
    for (const Line& line : lines_)
        width = std::max(width, line.rect.width());
    return width;
}

// A text without a width does not align its lines.
void ShownLines::AlignLinesIn(qreal width)
{
    for (Line& line : lines_) {
        const qreal free = width - line.rect.width();
        qreal left = 0;
        if (line.alignment & Qt::AlignRight)
            left = free;
        else if (line.alignment & Qt::AlignHCenter)
            left = free / 2;
        line.origin.rx() += left - line.rect.left();
        line.rect.moveLeft(left);
    }
}

int ShownLines::Count() const
{
    return static_cast<int>(lines_.size());
}

bool ShownLines::IsElided() const
{
    return std::any_of(lines_.begin(), lines_.end(),
                       [](const Line& line) { return line.elided != nullptr; });
}

QRectF ShownLines::BoundingRect() const
{
    return boundingRect_;
}

qreal ShownLines::FirstAscent() const
{
    return lines_.front().line.ascent();
}

void ShownLines::Draw(QPainter* painter, const QRectF& exposed, const QBrush& highlight) const
{
    for (const Line& line : lines_) {
        // Ink may reach into the next line, but not beyond it.
        const qreal overhang = line.rect.height();
        if (line.rect.top() - overhang <= exposed.bottom()
            && line.rect.bottom() + overhang >= exposed.top())
            line.Draw(painter, highlight);
    }
}

QRectF ShownLines::Ink() const
{
    QRectF ink;
    for (const Line& line : lines_)
        ink |= line.Ink();
    return ink;
}

bool ShownLines::HasInkOutside(qreal width) const
{
    return std::any_of(lines_.begin(), lines_.end(),
                       [width](const Line& line) { return line.HasInkOutside(width); });
}

std::vector<QRectF> ShownLines::GlyphRects(int start, int end) const
{
    std::vector<QRectF> rects;
    for (auto line = FirstLineEndingAfter(start);
         line < lines_.size() && lines_[line].Start() < end; ++line)
        lines_[line].AddGlyphRects(start, end, rects);
    return rects;
}

std::optional<int> ShownLines::PositionAt(const QPointF& point) const
{
    const auto line = std::find_if(lines_.begin(), lines_.end(), [&point](const Line& each) {
        return each.rect.contains(point) && each.Start() < each.End();
    });
    if (line == lines_.end())
        return std::nullopt;
    const int position =
        line->line.xToCursor(point.x() - line->origin.x(), QTextLine::CursorOnCharacter);
    // An ellipsis counts as the last character before it.
    return std::clamp(line->layoutStart + position, line->Start(), line->End() - 1);
}

std::size_t ShownLines::FirstLineEndingAfter(int position) const
{
    const auto first =
        std::partition_point(lines_.begin(), lines_.end(),
                             [position](const Line& line) { return line.End() <= position; });
    return static_cast<std::size_t>(first - lines_.begin());
}

void ShownLines::Highlight(const LaidOutText& text, const HighlightWords& words)
{
    for (Line& line : lines_)
        line.highlighted.clear();
    if (words.IsEmpty() || lines_.empty())
        return;
    const int shownEnd = lines_.back().End();
    const int count = text.ParagraphCount();
    for (int i = 0; i < count; ++i) {
        const LaidOutParagraph paragraph = text.Paragraph(i);
        if (paragraph.position >= shownEnd)
            break;
        const ParagraphText searched(paragraph.text, paragraph.formats, paragraph.position);
        const auto pictures = EmojiPicture::PicturesIn(paragraph.formats);
        for (const auto& [start, end] : words.CoveredRanges(searched.Characters()))
            HighlightRange(searched.Position(start), searched.Position(end), pictures);
    }
    for (Line& line : lines_)
        line.MergeHighlights();
}

void ShownLines::HighlightRange(int start, int end, const FormatRanges& pictures)
{
    for (auto i = FirstLineEndingAfter(start); i < lines_.size() && lines_[i].Start() < end; ++i) {
        Line& line = lines_[i];
        std::vector<QRectF> rects;
        line.AddGlyphRects(start, end, rects);
        if (!line.elided)
            line.AddPictureRects(pictures, start, end, rects);
        // In whole pixels, as the text engine draws the backgrounds of spans.
        for (const QRectF& rect : rects)
            line.highlighted.emplace_back(std::floor(rect.left()), std::ceil(rect.right()));
    }
}

int ShownLines::Line::Start() const
{
    return layoutStart + line.textStart();
}

int ShownLines::Line::End() const
{
    return elided ? layoutStart + elided->Length()
                  : layoutStart + line.textStart() + line.textLength();
}

void ShownLines::Line::AddGlyphRects(int start, int end, std::vector<QRectF>& rects) const
{
    const int first = std::max(start, Start());
    const int last = std::min(end, End());
    if (first >= last)
        return;
    // A glyph run has one direction, so that its text is in one rectangle.
    for (const QGlyphRun& run : line.glyphRuns(first - layoutStart, last - first))
        rects.push_back(run.boundingRect().translated(origin));
}

QRectF ShownLines::Line::Ink() const
{
    QRectF ink = rect;
    for (const QGlyphRun& run : line.glyphRuns()) {
        const QRawFont font = run.rawFont();
        const QVector<quint32> glyphs = run.glyphIndexes();
        const QVector<QPointF> positions = run.positions();
        for (int i = 0; i < glyphs.size(); ++i)
            ink |= font.boundingRect(glyphs[i]).translated(positions[i] + origin);
    }
    return ink;
}

bool ShownLines::Line::HasInkOutside(qreal width) const
{
    if (rect.left() < 0 || rect.right() > width)
        return true;
    const QList<QGlyphRun> runs = line.glyphRuns();
    return std::any_of(runs.begin(), runs.end(),
                       [&](const QGlyphRun& run) { return HasInkOutside(run, width); });
}

// Measuring the ink of a glyph takes time: that of a coloured emoji is decoded first. So
// only glyphs near the edges are measured.
bool ShownLines::Line::HasInkOutside(const QGlyphRun& run, qreal width) const
{
    // Ink never reaches farther out of the place of the glyph in the line.
    const qreal reach = rect.height();
    const auto isInside = [&](qreal one, qreal other) {
        return std::min(one, other) >= reach && std::max(one, other) <= width - reach;
    };
    const QRectF place = run.boundingRect().translated(origin);
    if (isInside(place.left(), place.right()))
        return false;
    const QVector<quint32> glyphs = run.glyphIndexes();
    const QVector<QPointF> positions = run.positions();
    for (int i = 0; i < glyphs.size(); ++i) {
        const QPointF start = positions[i] + origin;
        if (i + 1 < glyphs.size() && isInside(start.x(), positions[i + 1].x() + origin.x()))
            continue;
        const QRectF ink = run.rawFont().boundingRect(glyphs[i]).translated(start);
        if (ink.left() < 0 || ink.right() > width)
            return true;
    }
    return false;
}

// Pictures have no glyphs, but the zero width space after each of them has one, at
// its edge.
void ShownLines::Line::AddPictureRects(const FormatRanges& pictures, int start, int end,
                                       std::vector<QRectF>& rects) const
{
    for (const QTextLayout::FormatRange& range : pictures) {
        const int first = std::max({start, Start(), layoutStart + range.start}) - layoutStart;
        const int last =
            std::min({end, End(), layoutStart + range.start + range.length}) - layoutStart;
        const qreal width = EmojiPicture::Width(range.format);
        for (int at = first; at < last; ++at) {
            for (const QGlyphRun& strut : line.glyphRuns(at + 1, 1)) {
                const qreal x = strut.boundingRect().left();
                const QRectF cell(strut.isRightToLeft() ? x : x - width, 0, width, rect.height());
                rects.push_back(cell.translated(origin));
            }
        }
    }
}

void ShownLines::Line::MergeHighlights()
{
    std::sort(highlighted.begin(), highlighted.end());
    std::vector<Interval> merged;
    for (const Interval& interval : highlighted) {
        if (!merged.empty() && interval.first <= merged.back().second)
            merged.back().second = std::max(merged.back().second, interval.second);
        else
            merged.push_back(interval);
    }
    highlighted = std::move(merged);
}

QPainterPath ShownLines::Line::HighlightedPath() const
{
    QPainterPath path;
    const qreal top = std::floor(rect.top());
    const qreal bottom = std::ceil(rect.bottom());
    for (const auto& [left, right] : highlighted)
        AddClipRectangle(path, QRectF(QPointF(left, top), QPointF(right, bottom)));
    return path;
}

// Draws the highlighted text separately, so that it can have another colour without
// a new layout.
void ShownLines::Line::Draw(QPainter* painter, const QBrush& highlight) const
{
    if (highlighted.empty() || highlight.style() == Qt::NoBrush) {
        DrawText(painter);
        return;
    }
    const QPainterPath inside = HighlightedPath();
    QPainterPath outside;
    outside.addRect(
        rect.adjusted(-kMaximumOverhang, -kMaximumOverhang, kMaximumOverhang, kMaximumOverhang));
    outside.addPath(inside);

    painter->save();
    painter->setClipPath(outside, Qt::IntersectClip);
    DrawText(painter);
    painter->restore();

    painter->save();
    painter->setClipPath(inside, Qt::IntersectClip);
    painter->fillRect(inside.boundingRect(), highlight);
    const QTextLayout::FormatRange range = HighlightFormat(highlight, line);
    DrawText(painter, &range);
    painter->restore();
}

void ShownLines::Line::DrawText(QPainter* painter, const QTextLayout::FormatRange* format) const
{
    line.draw(painter, origin, format);
    if (elided)
        elided->DrawPictures(painter, origin);
}

} // namespace kestro
