#pragma once

#include "TextRange.h"

namespace kestro {

class LaidOutText;

enum class TextUnit { Character, Word, Paragraph };

// Where the parts of a text begin and end, as readers see them. A character is a
// grapheme; an emoji picture is one, too.
class TextUnits {
public:
    // The text must live longer and must not change.
    explicit TextUnits(const LaidOutText& text);

    // The position nearest to `position` that is not inside of a character.
    int Nearest(int position) const;

    // The unit that contains `position`. At the end of a paragraph, the last one in it.
    TextRange At(int position, TextUnit unit) const;
    // `range`, extended to whole characters.
    TextRange Around(const TextRange& range) const;

    // Where the next character or word begins, or its paragraph ends; the end of the text
    // at the latest.
    int Next(int position, TextUnit unit) const;
    // Where the character or word before `position` begins.
    int Previous(int position, TextUnit unit) const;

    // Whether the paragraph at `position` reads from right to left.
    bool IsRightToLeft(int position) const;

private:
    const LaidOutText& text_;
};

} // namespace kestro
