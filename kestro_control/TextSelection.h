#pragma once

#include "TextRange.h"

namespace kestro {

// What is selected in a text: from an anchor, which stays, to an end that moves. Both are
// units of the text, so that whole words stay selected in both directions.
class TextSelection {
public:
    TextSelection() = default;
    explicit TextSelection(const TextRange& anchor)
        : anchor_(anchor)
        , moved_(anchor)
    {
    }

    TextSelection ExtendedTo(const TextRange& unit) const
    {
        TextSelection extended(*this);
        extended.moved_ = unit;
        return extended;
    }

    // Moves the end to one position. Units do not count any more.
    TextSelection MovedTo(int position) const
    {
        const TextRange range = Range();
        const int fixed = Position() == range.end ? range.start : range.end;
        return TextSelection({fixed, fixed}).ExtendedTo({position, position});
    }

    TextRange Range() const { return United(anchor_, moved_); }

    // The end that moves.
    int Position() const { return moved_.start < anchor_.start ? moved_.start : moved_.end; }

private:
    TextRange anchor_;
    TextRange moved_;
};

} // namespace kestro
