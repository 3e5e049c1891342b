#pragma once

#include <algorithm>

namespace kestro {

// The part of a text between two positions.
struct TextRange {
    int start = 0;
    int end = 0;

    bool IsEmpty() const { return start >= end; }

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

inline TextRange United(const TextRange& one, const TextRange& other)
{
    return {std::min(one.start, other.start), std::max(one.end, other.end)};
}

} // namespace kestro
