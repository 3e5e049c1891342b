#pragma once

#include <Qt>

class QGraphicsItem;
class QPointF;

namespace plix::test {

// Presses and releases a button over a card, as a view does: the items that
// lie there decide who takes it.
void click(QGraphicsItem& root, const QPointF& at, Qt::MouseButton button = Qt::LeftButton);

// Hands one item a press or a release, whoever would have taken it. Whether
// the item accepted it.
bool pressOn(QGraphicsItem& item, Qt::MouseButton button = Qt::LeftButton);
bool releaseOn(QGraphicsItem& item, Qt::MouseButton button = Qt::LeftButton);

} // namespace plix::test
