#pragma once

#include <QRectF>

#include <functional>
#include <vector>

class QGraphicsItem;

namespace plix::test {

// Calls `visit` for `root` and everything below it. No recursion: cards may be
// deeper than a small stack.
void forEachItem(QGraphicsItem& root, const std::function<void(QGraphicsItem&)>& visit);

// Where every item of a card is shown, and its size by the layout.
std::vector<QRectF> geometryOf(QGraphicsItem& root);

} // namespace plix::test
