#pragma once

class QGraphicsObject;

namespace kestro {

class ItemSelection;

// Tells clients of QAccessible what is selected of the text of `item` now. Does nothing if
// there are none, or if the item is in no scene.
void TellOfSelection(const ItemSelection& selection, QGraphicsObject& item);

} // namespace kestro
