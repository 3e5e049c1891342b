#pragma once

#include "TextUnits.h"

#include <QTextLayout>

#include <cstddef>
#include <optional>

class QPointF;
class QRectF;

namespace kestro {

class ShownLine;
class ShownLines;

// Which position of a text is at a place of its lines, and where a position is: for the mouse
// and keys that select, and for screen readers. A character is what TextUnits says. An ellipsis
// counts as one, which is the text that it stands for.
class TextHitTest {
public:
    // Both must live longer and must not change.
    TextHitTest(const LaidOutText& text, const ShownLines& shown);

    const TextUnits& Units() const { return units_; }
    // The position at which the text ends.
    int End() const;

    // The position of a caret at the point. Above the lines, the start of the text; below
    // them, its end.
    int PositionAt(const QPointF& point) const;
    // The position of the character at the point, or nearest to it.
    int CharacterAt(const QPointF& point) const;
    // The position of the shown character at the point. Here, an ellipsis counts as the
    // character before it, because what it stands for is not shown.
    std::optional<int> ShownCharacterAt(const QPointF& point) const;
    // The rectangle of the character at `position`; empty if it is not shown.
    QRectF RectOf(int position) const;

    // The positions before and after the next step of a caret.
    int Next(int position, TextUnit unit) const;
    int Previous(int position, TextUnit unit) const;

    // Where a caret is.
    qreal XOf(int position) const;
    // The position at `x` in the line above or below that of `position`; the start or end
    // of the text if there is none.
    int InLineAbove(int position, qreal x) const;
    int InLineBelow(int position, qreal x) const;

    int LineStart(int position) const;
    int LineEnd(int position) const;

private:
    // There must be a line.
    std::size_t LineOf(int position) const;
    // The line at this height, or the nearest one.
    const ShownLine& LineAt(qreal y) const;
    int PositionIn(const ShownLine& line, qreal x, QTextLine::CursorPosition kind) const;
    int CaretIn(std::size_t line, qreal x) const;
    // Whether the paragraph goes on in the next line.
    bool IsBroken(std::size_t line) const;
    int PositionAt(const QPointF& point, QTextLine::CursorPosition kind) const;
    // The ellipsis that hides `position`, or an empty range.
    TextRange HiddenAround(int position) const;

    const LaidOutText& text_;
    const ShownLines& shown_;
    TextUnits units_;
};

} // namespace kestro
