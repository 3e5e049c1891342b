#include "ElidedLine.h"

#include "DirectionControls.h"
#include "EmojiPicture.h"
#include "Graphemes.h"
#include "TextWork.h"

#include <algorithm>

namespace kestro {

namespace {

constexpr QChar kEllipsis(0x2026);

// More characters than any line shows. Without a maximum, a long text of marks
// without width would be laid out in full several times.
constexpr int kMaximumCharacters = 4096;

// Wider than any line, and well within the text engine's number format.
constexpr qreal kUnlimitedWidth = 1 << 22;

int LengthWithoutTrailingSpace(const QString& text, int length)
{
    while (length > 0 && text.at(length - 1).isSpace())
        --length;
    return length;
}

// Characters that end all explicit directions in the text, so that the ellipsis
// is at the end of the line and not inside of one. Some may have ended in the text
// already; ending them again has no effect.
QString DirectionEnds(const QString& text)
{
    QString ends;
    for (const QChar character : text) {
        const QChar::Direction direction = character.direction();
        if (direction == QChar::DirLRE || direction == QChar::DirRLE || direction == QChar::DirLRO
            || direction == QChar::DirRLO)
            ends.append(kPopDirectionalFormatting);
        else if (direction == QChar::DirLRI || direction == QChar::DirRLI
                 || direction == QChar::DirFSI)
            ends.append(kPopDirectionalIsolate);
    }
    std::reverse(ends.begin(), ends.end());
    return ends;
}

// The formats of the first `length` characters. The last format is extended to
// `tailLength` characters that follow.
QVector<QTextLayout::FormatRange> FormatsWithTail(const QVector<QTextLayout::FormatRange>& formats,
                                                  int length, int tailLength)
{
    QVector<QTextLayout::FormatRange> result;
    const int last = std::max(length - 1, 0);
    for (QTextLayout::FormatRange range : formats) {
        if (range.start > last)
            break;
        if (range.start + range.length > last)
            range.length = length + tailLength - range.start;
        result.push_back(range);
    }
    return result;
}

QTextOption OneLineOption(QTextOption option, bool aligned)
{
    option.setWrapMode(QTextOption::NoWrap);
    if (!aligned)
        option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    return option;
}

ElisionSource WithoutPictures(ElisionSource source)
{
    EmojiPicture::ReplaceWithPlaceholders(source.text, source.formats);
    return source;
}

} // namespace

ElidedLine::ElidedLine(ElisionSource source, std::optional<qreal> width)
    : source_(WithoutPictures(std::move(source)))
    , pictures_(EmojiPicture::PicturesIn(source_.formats))
    , width_(width)
{
    layout_.setFont(source_.font);
    layout_.setTextOption(OneLineOption(source_.option, width_.has_value()));
    // The line is drawn more often than it is laid out.
    layout_.setCacheEnabled(true);

    LayOut(width_ ? LongestFittingLength() : source_.text.size());
}

QTextLine ElidedLine::Line() const
{
    return layout_.lineAt(0);
}

void ElidedLine::Draw(QPainter* painter, const QPointF& origin,
                      const QTextLayout::FormatRange* format) const
{
    if (format)
        DrawBesidePictures(painter, origin, *format);
    else
        Line().draw(painter, origin);
    DrawPictures(painter, origin);
}

// The colour of a format would make the characters visible that keep the pictures' places.
void ElidedLine::DrawBesidePictures(QPainter* painter, const QPointF& origin,
                                    QTextLayout::FormatRange format) const
{
    const int end = format.start + format.length;
    for (const QTextLayout::FormatRange& picture : pictures_) {
        format.length = std::min(picture.start, end) - format.start;
        if (format.length > 0)
            Line().draw(painter, origin, &format);
        format.start = picture.start + picture.length;
    }
    format.length = end - format.start;
    if (format.length > 0)
        Line().draw(painter, origin, &format);
}

// QTextLayout does not draw them.
void ElidedLine::DrawPictures(QPainter* painter, const QPointF& origin) const
{
    const QTextLine line = Line();
    const qreal baseline = origin.y() + line.y() + line.ascent();
    for (const QTextLayout::FormatRange& range : pictures_) {
        const int end = std::min(range.start + range.length, laidOutLength_);
        for (int at = range.start; at < end; ++at) {
            const qreal left = std::min(line.cursorToX(at, QTextLine::Leading),
                                        line.cursorToX(at, QTextLine::Trailing));
            EmojiPicture::Draw(painter, {origin.x() + left, baseline}, range.format);
        }
    }
}

// The more characters, the wider the line (except for small effects of ligatures
// and kerning). So this is a binary search, which starts near the expected length.
int ElidedLine::LongestFittingLength()
{
    const std::vector<int> cuts = GraphemeBoundaries(source_.text.left(kMaximumCharacters));
    const auto expected = std::lower_bound(cuts.begin(), cuts.end(), source_.expectedLength);

    std::size_t fitting = 0; // The ellipsis alone is always shown.
    const bool isAllTooWide = source_.isTooWide && cuts.back() == source_.text.size();
    std::size_t tooLong = isAllTooWide ? cuts.size() - 1 : cuts.size();
    auto probe = static_cast<std::size_t>(expected - cuts.begin());
    for (std::size_t step = 1; tooLong - fitting > 1; step *= 2) {
        if (probe <= fitting || probe >= tooLong)
            probe = fitting + (tooLong - fitting) / 2;
        if (Fits(cuts[probe])) {
            fitting = probe;
            probe = fitting + step;
        } else {
            tooLong = probe;
            probe = tooLong - std::min(step, tooLong);
        }
    }
    return cuts[fitting];
}

bool ElidedLine::Fits(int length)
{
    LayOut(length);
    return Line().naturalTextWidth() <= *width_;
}

void ElidedLine::LayOut(int length)
{
    const int kept = LengthWithoutTrailingSpace(source_.text, length);
    if (layout_.lineCount() > 0 && kept == laidOutLength_)
        return;
    laidOutLength_ = kept;

    const QString start = source_.text.left(kept);
    const QString tail = DirectionEnds(start) + kEllipsis;
    WorkSoFar().shapedCharacters += kept;
    layout_.setText(start + tail);
    layout_.setFormats(FormatsWithTail(source_.formats, kept, tail.size()));
    layout_.beginLayout();
    QTextLine line = layout_.createLine();
    line.setLeadingIncluded(true);
    line.setLineWidth(width_.value_or(kUnlimitedWidth));
    layout_.endLayout();
}

} // namespace kestro
