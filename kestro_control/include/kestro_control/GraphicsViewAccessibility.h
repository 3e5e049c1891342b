// Makes graphics views readable for screen readers: Qt shows only the view itself to
// the clients of QAccessible, and nothing of what is in its scene.
#pragma once

#include "kestro_control/KestroControlExport.h"

namespace kestro {

// Puts the items of every graphics view of the application into its accessible tree.
// Call it once, when there is a QApplication. It costs nothing until a client asks.
//
// - The children of a view are the top items of its scene, in the order of their
//   z values and, for equal ones, from top to bottom and from left to right. The child
//   widgets of the view follow. The children of an item are in their stacking order.
// - Only items that are QObjects have an interface. Others are replaced with their
//   children, and so is a QGraphicsProxyWidget with its widget. (Qt says of such a
//   widget that the application is its parent.)
// - A TextItem or QGraphicsTextItem is its text, any other item a group without a name.
//   Give it one with the property "accessibleName":
//
//       item->setProperty("accessibleName", tr("Map of the area"));
//
//   For more, write an interface of your own: see AccessibleGraphicsObject.h.
// - If several views show a scene, its items are in the first one that is visible.
// - When the keyboard focus moves to another item, clients are told.
KESTRO_CONTROL_API void InstallGraphicsViewAccessibility();

} // namespace kestro
