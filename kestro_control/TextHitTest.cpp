#include "TextHitTest.h"

#include "EmojiPicture.h"
#include "LaidOutText.h"
#include "ShownLines.h"

#include <QPointF>
#include <QRectF>

#include <algorithm>
#include <vector>

namespace kestro {

namespace {

// May be inside of a character.
int CursorAt(const ShownLine& line, qreal x, QTextLine::CursorPosition kind)
{
    return line.layoutStart + line.line.xToCursor(x - line.origin.x(), kind);
}

} // namespace

TextHitTest::TextHitTest(const LaidOutText& text, const ShownLines& shown)
    : text_(text)
    , shown_(shown)
    , units_(text)
{
}

int TextHitTest::End() const
{
    return text_.End();
}

int TextHitTest::PositionAt(const QPointF& point) const
{
    return PositionAt(point, QTextLine::CursorBetweenCharacters);
}

int TextHitTest::CharacterAt(const QPointF& point) const
{
    return PositionAt(point, QTextLine::CursorOnCharacter);
}

int TextHitTest::PositionAt(const QPointF& point, QTextLine::CursorPosition kind) const
{
    const std::vector<ShownLine>& lines = shown_.Lines();
    if (lines.empty() || point.y() < lines.front().rect.top())
        return 0;
    if (point.y() >= lines.back().rect.bottom())
        return End();
    return PositionIn(LineAt(point.y()), point.x(), kind);
}

std::optional<int> TextHitTest::ShownCharacterAt(const QPointF& point) const
{
    if (shown_.Lines().empty())
        return std::nullopt;
    const ShownLine& line = LineAt(point.y());
    if (!line.rect.contains(point) || line.Start() >= line.ShownEnd())
        return std::nullopt;
    const int cursor = CursorAt(line, point.x(), QTextLine::CursorOnCharacter);
    const int shown = std::clamp(cursor, line.Start(), line.ShownEnd() - 1);
    return units_.At(shown, TextUnit::Character).start;
}

QRectF TextHitTest::RectOf(int position) const
{
    const TextRange character = units_.At(position, TextUnit::Character);
    if (shown_.Lines().empty() || position >= character.end)
        return {};
    const ShownLine& line = shown_.Lines()[LineOf(position)];
    const auto pictures = EmojiPicture::PicturesIn(text_.ParagraphAt(position).formats);
    QRectF rect;
    for (const QRectF& part : line.RectsOf(character, pictures))
        rect |= part;
    return rect;
}

const ShownLine& TextHitTest::LineAt(qreal y) const
{
    const std::vector<ShownLine>& lines = shown_.Lines();
    return *std::partition_point(lines.begin(), lines.end() - 1,
                                 [y](const ShownLine& other) { return other.rect.bottom() <= y; });
}

int TextHitTest::PositionIn(const ShownLine& line, qreal x, QTextLine::CursorPosition kind) const
{
    const int position = CursorAt(line, x, kind);
    const bool isBehindEllipsis = line.elided && position > line.ShownEnd();
    return isBehindEllipsis ? line.end : units_.Nearest(position);
}

int TextHitTest::Next(int position, TextUnit unit) const
{
    const int next = units_.Next(position, unit);
    const TextRange hidden = HiddenAround(next);
    return hidden.IsEmpty() ? next : hidden.end;
}

int TextHitTest::Previous(int position, TextUnit unit) const
{
    const int previous = units_.Previous(position, unit);
    const TextRange hidden = HiddenAround(previous);
    return hidden.IsEmpty() ? previous : std::min(hidden.start, position);
}

TextRange TextHitTest::HiddenAround(int position) const
{
    const std::vector<ShownLine>& lines = shown_.Lines();
    if (lines.empty())
        return {};
    const ShownLine& line = lines[LineOf(position)];
    const TextRange hidden {line.ShownEnd(), line.end};
    const bool isInside = line.elided && hidden.start < position && position < hidden.end;
    return isInside ? hidden : TextRange();
}

qreal TextHitTest::XOf(int position) const
{
    const std::vector<ShownLine>& lines = shown_.Lines();
    if (lines.empty())
        return 0;
    const ShownLine& line = lines[LineOf(position)];
    const int inLayout = position > line.ShownEnd() ? line.line.textStart() + line.line.textLength()
                                                    : position - line.layoutStart;
    return line.origin.x() + line.line.cursorToX(inLayout);
}

int TextHitTest::InLineAbove(int position, qreal x) const
{
    const std::size_t line = shown_.Lines().empty() ? 0 : LineOf(position);
    return line == 0 ? 0 : CaretIn(line - 1, x);
}

int TextHitTest::InLineBelow(int position, qreal x) const
{
    const std::size_t count = shown_.Lines().size();
    const std::size_t below = count == 0 ? 0 : LineOf(position) + 1;
    return below >= count ? End() : CaretIn(below, x);
}

// A caret behind the last character of a line that was broken would be in the next line.
int TextHitTest::CaretIn(std::size_t line, qreal x) const
{
    const ShownLine& shown = shown_.Lines()[line];
    const int position = PositionIn(shown, x, QTextLine::CursorBetweenCharacters);
    if (position < shown.end || !IsBroken(line))
        return position;
    return shown.elided ? shown.ShownEnd() : units_.Previous(position, TextUnit::Character);
}

int TextHitTest::LineStart(int position) const
{
    return shown_.Lines().empty() ? 0 : shown_.Lines()[LineOf(position)].Start();
}

int TextHitTest::LineEnd(int position) const
{
    if (shown_.Lines().empty())
        return 0;
    const std::size_t line = LineOf(position);
    const ShownLine& shown = shown_.Lines()[line];
    // The space at which a line was broken is not shown.
    const bool endsInSpace =
        IsBroken(line) && !shown.elided && text_.CharacterAt(shown.end - 1).isSpace();
    return endsInSpace ? std::max(position, shown.end - 1) : shown.end;
}

bool TextHitTest::IsBroken(std::size_t line) const
{
    const std::vector<ShownLine>& lines = shown_.Lines();
    return line + 1 < lines.size() && lines[line + 1].Start() == lines[line].end;
}

std::size_t TextHitTest::LineOf(int position) const
{
    const std::vector<ShownLine>& lines = shown_.Lines();
    const auto next =
        std::partition_point(lines.begin() + 1, lines.end(), [position](const ShownLine& line) {
            return line.Start() <= position;
        });
    return static_cast<std::size_t>(next - lines.begin()) - 1;
}

} // namespace kestro
