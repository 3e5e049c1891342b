#pragma once

#include <QRectF>

#include <functional>
#include <vector>

class QGraphicsItem;

namespace plix::test {

// Calls `visit` for `root` and all items below it. Without recursion, because cards may be
// too deep for a small stack.
void forEachItem(QGraphicsItem& root, const std::function<void(QGraphicsItem&)>& visit);

// For every item of a card, its rectangle in its parent and its size by the layout.
std::vector<QRectF> geometryOf(QGraphicsItem& root);

// Whether the card has an empty text. A wrapped text is emptied for good when a layout gives it
// no width, so the next layout may place the items of such a card in another way.
bool hasEmptiedText(QGraphicsItem& root);

} // namespace plix::test
