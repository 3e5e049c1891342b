#pragma once

#include <Qt>

class QGraphicsView;

namespace plix::test {

// Presses and releases a key in the view, which gets the keyboard focus first, as if
// its window were active.
void pressKey(QGraphicsView& view, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

} // namespace plix::test
