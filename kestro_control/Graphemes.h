#pragma once

#include <QString>

#include <vector>

namespace kestro {

// Where graphemes, which readers see as one character, begin and end: in ascending order,
// including the start and the end of the text.
std::vector<int> GraphemeBoundaries(const QString& text);

} // namespace kestro
