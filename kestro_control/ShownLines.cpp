#include "ShownLines.h"

#include "ElidedLine.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

// The text of a paragraph with its formats, taken out of the document once for
// all its lines.
struct Paragraph {
    explicit Paragraph(const QTextBlock& block)
        : text(block.text())
        , formats(block.textFormats())
    {
    }

    QString text;
    QVector<QTextLayout::FormatRange> formats;
};

QVector<QTextLayout::FormatRange> formatsFrom(const QVector<QTextLayout::FormatRange>& formats,
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

// Whether anything that leaves ink follows. Spaces and line ends that the line
// limit hides are nothing a reader would miss.
bool hasTextFrom(const QTextDocument& document, int position)
{
    const int end = document.characterCount();
    while (position < end && document.characterAt(position).isSpace())
        ++position;
    return position < end;
}

int forcedLineEnd(const QString& text, int start)
{
    const int end = text.indexOf(QChar::LineSeparator, start);
    return end < 0 ? text.size() : end;
}

// Spaces at the end of a line that did not wrap count in its natural width.
// They are side by side at one of its edges, whatever the direction.
qreal trailingSpaceWidth(const QTextBlock& block, const QTextLine& line)
{
    const QTextDocument& document = *block.document();
    const int end = line.textStart() + line.textLength();
    int textEnd = end;
    while (textEnd > line.textStart()
           && document.characterAt(block.position() + textEnd - 1).isSpace())
        --textEnd;
    return std::abs(line.cursorToX(end) - line.cursorToX(textEnd));
}

int expectedLength(const QTextLine& line, qreal width)
{
    const qreal share = std::min(1.0, width / std::max(1.0, line.naturalTextWidth()));
    return static_cast<int>(line.textLength() * share);
}

} // namespace

class ShownLines::Builder {
public:
    Builder(const QTextDocument& document, int maxCount, bool elide, std::vector<Line>& lines)
        : document_(document)
        , maxCount_(maxCount)
        , elide_(elide)
        , lines_(lines)
    {
    }

    void AddLines()
    {
        for (QTextBlock block = document_.begin(); block.isValid() && !IsFull();
             block = block.next())
            AddLinesOf(block);
    }

private:
    bool IsFull() const { return maxCount_ > 0 && static_cast<int>(lines_.size()) >= maxCount_; }

    void AddLinesOf(const QTextBlock& block)
    {
        const QPointF origin = document_.documentLayout()->blockBoundingRect(block).topLeft();
        const QTextLayout& layout = *block.layout();
        std::optional<Paragraph> paragraph;
        for (int i = 0; i < layout.lineCount() && !IsFull(); ++i) {
            AddLine(layout.lineAt(i), layout.textOption().alignment(), origin);
            if (elide_)
                ElideIfNeeded(block, paragraph);
        }
    }

    void AddLine(const QTextLine& line, Qt::Alignment alignment, const QPointF& blockOrigin)
    {
        const QPointF origin = blockOrigin + QPointF(0, movedDown_);
        lines_.push_back({line, origin, TextRect(line, origin), alignment, nullptr});
    }

    // Both concern the line that was added last.

    void ElideIfNeeded(const QTextBlock& block, std::optional<Paragraph>& paragraph)
    {
        const QTextLine& line = lines_.back().line;
        const int end = line.textStart() + line.textLength();
        const bool isCut = IsFull() && hasTextFrom(document_, block.position() + end);
        if (!isCut && !IsTooWide(block, line))
            return;
        if (!paragraph)
            paragraph.emplace(block);
        Elide(block, *paragraph, isCut ? forcedLineEnd(paragraph->text, line.textStart()) : end);
    }

    void Elide(const QTextBlock& block, const Paragraph& paragraph, int end)
    {
        Line& shown = lines_.back();
        const QTextLine line = shown.line;
        const int start = line.textStart();
        const std::optional<qreal> width = AvailableWidth(block, line);

        ElisionSource source;
        source.text = paragraph.text.mid(start, end - start);
        source.formats = formatsFrom(paragraph.formats, start, end);
        source.font = document_.defaultFont();
        source.option = block.layout()->textOption();
        if (width)
            source.expectedLength = expectedLength(line, *width);

        shown.elided = std::make_unique<ElidedLine>(std::move(source), width);
        shown.line = shown.elided->Line();
        shown.origin += line.position();
        shown.rect = TextRect(shown.line, shown.origin);
        movedDown_ += shown.line.height() - line.height();
    }

    bool IsTooWide(const QTextBlock& block, const QTextLine& line) const
    {
        const std::optional<qreal> width = AvailableWidth(block, line);
        return width && line.naturalTextWidth() > *width
            && line.naturalTextWidth() - trailingSpaceWidth(block, line) > *width;
    }

    // QTextLine::width() is of no help: it grows with a text that is too wide.
    std::optional<qreal> AvailableWidth(const QTextBlock& block, const QTextLine& line) const
    {
        if (document_.textWidth() < 0)
            return std::nullopt;
        const QTextFrameFormat frame = document_.rootFrame()->frameFormat();
        const qreal left = block.layout()->position().x() + line.x();
        const qreal right = document_.textWidth() - frame.rightMargin() - frame.border()
            - frame.padding() - block.blockFormat().rightMargin();
        return std::max(0.0, right - left);
    }

    static QRectF TextRect(const QTextLine& line, const QPointF& origin)
    {
        return line.naturalTextRect().translated(origin);
    }

    const QTextDocument& document_;
    const int maxCount_;
    const bool elide_;
    std::vector<Line>& lines_;
    // How much higher than in the document the lines above have become: an
    // ellipsis can bring tall text into its line, or drive it out.
    qreal movedDown_ = 0;
};

ShownLines::ShownLines() = default;
ShownLines::~ShownLines() = default;
ShownLines::ShownLines(ShownLines&&) noexcept = default;
ShownLines& ShownLines::operator=(ShownLines&&) noexcept = default;

ShownLines::ShownLines(const QTextDocument& document, int maxCount, bool elide)
{
    if (!document.isEmpty())
        Builder(document, maxCount, elide, lines_).AddLines();

    const bool hasWidth = document.textWidth() >= 0;
    const qreal width = hasWidth ? document.textWidth() : WidestLine();
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

// Without a width of its own, the document does not align its lines.
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

void ShownLines::Draw(QPainter* painter, const QRectF& exposed) const
{
    for (const Line& line : lines_) {
        // Ink may stand out from its line, but not as far as the next but one.
        const qreal overhang = line.rect.height();
        if (line.rect.top() - overhang <= exposed.bottom()
            && line.rect.bottom() + overhang >= exposed.top())
            line.line.draw(painter, line.origin);
    }
}
