#pragma once

#include "Element.h"

class QGraphicsObject;

namespace bench {

// The text that `item` shows, if it is an item that shows one.
std::optional<Text> readText(const QGraphicsObject& item, const PaintRecord& record);

} // namespace bench
