#pragma once

#include "check/ShownItem.h"

#include <QString>

namespace plix::tool {

// What to change in a card, so that an item is shown as a whole.

// "the text", "the image".
QString nameOf(const ShownItem& item);

// For an item without room.
QString roomMend(const ShownItem& item);

// For an item that is outside of its box, or over another one.
QString placeMend(const ShownItem& item);

// For an item that is over an earlier one of its box.
QString overlapMend(const ShownItem& item, bool hasNegativeMargin);

// Whether a margin pulls the item over the one before it.
bool hasNegativeMargin(const ShownItem& item);

// For a text that is cut.
QString cutMend(const ShownItem& item);

} // namespace plix::tool
