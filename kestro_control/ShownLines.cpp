#include "ShownLines.h"

#include "ElidedLine.h"
#include "EmojiPicture.h"
#include "HighlightWords.h"
#include "LaidOutText.h"
#include "ParagraphText.h"

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

void Append(const LineIntervals& added, LineIntervals& intervals)
{
    intervals.insert(intervals.end(), added.begin(), added.end());
}

} // namespace

// Makes the lines of a text, up to the line limit.
class ShownLines::Builder {
public:
    Builder(const LaidOutText& text, int maxCount, bool elide, bool hasMoreText,
            std::vector<ShownLine>& lines)
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
        ShownLine shown;
        shown.line = line;
        shown.origin = paragraph.origin + QPointF(0, shiftDown_);
        shown.rect = TextRect(line, shown.origin);
        shown.alignment = paragraph.layout->textOption().alignment();
        shown.layoutStart = paragraph.position;
        shown.end = paragraph.position + line.textStart() + line.textLength();
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
        ShownLine& shown = lines_.back();
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
        if (isCut)
            shown.end = text_.End();
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
    std::vector<ShownLine>& lines_;
    int paragraphIndex_ = 0;
    // How much lower the next line is than in the text's own layout. Elided lines can
    // be higher or lower than the lines there: an ellipsis can remove tall text from
    // its line or bring some in.
    qreal shiftDown_ = 0;
};

ShownLines::ShownLines(const LaidOutText& text, int maxCount, bool elide, bool hasMoreText)
{
    if (!text.IsEmpty() || hasMoreText)
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
    for (const ShownLine& line : lines_)
        width = std::max(width, line.rect.width());
    return width;
}

// A text without a width does not align its lines.
void ShownLines::AlignLinesIn(qreal width)
{
    for (ShownLine& line : lines_) {
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
                       [](const ShownLine& line) { return line.elided != nullptr; });
}

QRectF ShownLines::BoundingRect() const
{
    return boundingRect_;
}

qreal ShownLines::FirstAscent() const
{
    return lines_.front().line.ascent();
}

void ShownLines::Draw(QPainter& painter, const QRectF& exposed, const QBrush& highlight,
                      const SelectionLook& selection) const
{
    const LineIntervals none;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const ShownLine& line = lines_[i];
        // Ink may reach into the next line, but not beyond it.
        const qreal overhang = line.rect.height();
        if (line.rect.top() - overhang > exposed.bottom()
            || line.rect.bottom() + overhang < exposed.top())
            continue;
        const LineIntervals& selected = i < selection.lines.size() ? selection.lines[i] : none;
        const QColor onHighlight = line.highlighted.empty() ? QColor() : TextColorOn(highlight);
        const LineMark marks[] = {{selected, selection.background, selection.textColor},
                                  {line.highlighted, highlight, onHighlight}};
        line.Draw(painter, marks);
    }
}

QRectF ShownLines::Ink() const
{
    QRectF ink;
    for (const ShownLine& line : lines_)
        ink |= line.Ink();
    return ink;
}

bool ShownLines::HasInkOutside(qreal width) const
{
    return std::any_of(lines_.begin(), lines_.end(),
                       [width](const ShownLine& line) { return line.HasInkOutside(width); });
}

std::vector<QRectF> ShownLines::GlyphRects(const TextRange& range) const
{
    std::vector<QRectF> rects;
    for (auto line = FirstLineEndingAfter(range.start);
         line < lines_.size() && lines_[line].Start() < range.end; ++line)
        lines_[line].AddGlyphRects(range, rects);
    return rects;
}

std::size_t ShownLines::FirstLineEndingAfter(int position) const
{
    const auto first =
        std::partition_point(lines_.begin(), lines_.end(),
                             [position](const ShownLine& line) { return line.end <= position; });
    return static_cast<std::size_t>(first - lines_.begin());
}

void ShownLines::Highlight(const LaidOutText& text, const HighlightWords& words)
{
    for (ShownLine& line : lines_)
        line.highlighted.clear();
    if (words.IsEmpty() || lines_.empty())
        return;
    const int shownEnd = lines_.back().ShownEnd();
    const int count = text.ParagraphCount();
    for (int i = 0; i < count; ++i) {
        const LaidOutParagraph paragraph = text.Paragraph(i);
        if (paragraph.position >= shownEnd)
            break;
        const ParagraphText searched(paragraph);
        const auto pictures = EmojiPicture::PicturesIn(paragraph.formats);
        for (const auto& [start, end] : words.CoveredRanges(searched.Characters()))
            HighlightRange({searched.Position(start), searched.Position(end)}, pictures);
    }
    for (ShownLine& line : lines_)
        Merge(line.highlighted);
}

void ShownLines::HighlightRange(const TextRange& range, const ShownLine::FormatRanges& pictures)
{
    for (auto i = FirstLineEndingAfter(range.start);
         i < lines_.size() && lines_[i].Start() < range.end; ++i)
        Append(lines_[i].IntervalsOf(range, pictures), lines_[i].highlighted);
}

std::vector<LineIntervals> ShownLines::IntervalsOf(const LaidOutText& text,
                                                   const TextRange& range) const
{
    std::vector<LineIntervals> all(lines_.size());
    for (auto i = FirstLineEndingAfter(range.start);
         i < lines_.size() && lines_[i].Start() < range.end; ++i) {
        const ShownLine& line = lines_[i];
        const auto formats = text.ParagraphAt(line.Start()).formats;
        all[i] = line.IntervalsOf(range, EmojiPicture::PicturesIn(formats));
        if (line.HidesPartOf(range))
            Append(line.EllipsisIntervals(), all[i]);
        Merge(all[i]);
    }
    return all;
}

} // namespace kestro
