#pragma once

#include <QVector>

class QGraphicsItem;
class QGraphicsObject;

namespace plix::tool {

// The items of a card that are directly in an item, in their order. Without the stops
// of the Tab key on texts, which show nothing of the card.
QVector<QGraphicsObject*> childObjects(const QGraphicsItem& item);

} // namespace plix::tool
