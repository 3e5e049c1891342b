#pragma once

class QGraphicsItem;
class QGraphicsSceneMouseEvent;
class QPointF;

namespace kestro {

// Gives a click of the left button to the items below `item`, as if that had ignored it: the
// first one that accepts the press gets the release, too. `item` gives its mouse grab back
// before. `release` ends the click, and `pressedAt` is the position in the scene where it
// began. The items may delete `item`.
void PassClickBelow(QGraphicsItem& item, const QGraphicsSceneMouseEvent& release,
                    const QPointF& pressedAt);

} // namespace kestro
