#pragma once

#include "TextRange.h"

#include <QVector>

#include <vector>

namespace kestro {

class HighlightWords;
class LaidOutText;
class ShownLines;

// A part of TextItem::toPlainText().
struct CharacterRange {
    int start = 0;
    int end = 0;
};

// The characters of TextItem::toPlainText(), counted from 0, and their positions in the text
// that is laid out. They differ, because a picture of an emoji stands for several characters.
// TextHitTest knows where positions are shown, and TextUnits what readers see as one character.
class TextCharacters {
public:
    // The text must live longer and must not change.
    explicit TextCharacters(const LaidOutText& text);

    // The index of the character at `position`, or of the first one behind it.
    int IndexOf(int position) const;
    // The end of the text if the character is beyond the display limit.
    int PositionOf(int index) const;
    TextRange PositionsOf(const CharacterRange& range) const;

    // The index of the first character of each line.
    QVector<int> LineStarts(const ShownLines& shown) const;

    // What occurrences of the words cover.
    std::vector<CharacterRange> RangesOf(const HighlightWords& words) const;

private:
    const LaidOutText& text_;
};

} // namespace kestro
