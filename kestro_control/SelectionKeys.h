#pragma once

#include <QtGlobal>

#include <optional>

class QKeyEvent;

namespace kestro {

class TextHitTest;

// The end of a selection that keys move.
struct SelectionCaret {
    int position = 0;
    // Where it moves up and down; nothing: where it is.
    std::optional<qreal> x;
};

// Where a key moves the end of a selection; nothing for other keys. They are those of the
// platform, such as Shift and an arrow.
std::optional<SelectionCaret> MovedByKey(const QKeyEvent& key, const TextHitTest& text,
                                         const SelectionCaret& caret);

// Whether it is one of these keys.
bool IsSelectionKey(const QKeyEvent& key);

} // namespace kestro
