#pragma once

#include <Qt>

#include <optional>
#include <string>

// How a word of "align" or "gravity" places an item in its box, and content that
// is smaller than its item.
struct PlixAlignment {
    Qt::AlignmentFlag flag = Qt::AlignLeft; // for YogaLayoutItem::setAlignment()
    // The share of the free space that lies before the content: left of it, or
    // above it.
    double shareBefore = 0;
};

namespace plix {

// "start", "center" and "end" in a card that reads from left to right; nothing for
// any other word.
std::optional<PlixAlignment> FindAlign(const std::string& word);

// "top", "center" and "bottom"; nothing for any other word.
std::optional<PlixAlignment> FindGravity(const std::string& word);

} // namespace plix
