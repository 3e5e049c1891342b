#pragma once

#include <QList>
#include <QRectF>
#include <QVector>

class QAccessibleInterface;
class QGraphicsItem;
class QGraphicsScene;
class QGraphicsView;

namespace kestro {

// How the items of a scene become an accessible tree.

// The view in which clients find the items: the first visible one. If none is visible, the
// first one; null if there is none.
QGraphicsView* ViewOf(const QGraphicsScene* scene);

// Null for an item that is no QObject, or that no factory knows.
QAccessibleInterface* InterfaceOf(QGraphicsItem& item);

// False for null, and for interfaces that are not ours.
bool IsLeftOut(const QAccessibleInterface* accessible);

// The interfaces of items of one parent, in the order of the items. An item that has none
// or is left out is replaced with its children.
QVector<QAccessibleInterface*> InterfacesOf(const QList<QGraphicsItem*>& items);

// The interface of what has the keyboard focus in a scene; null if nothing has it.
QAccessibleInterface* FocusedInterface(const QGraphicsScene* scene);

// The topmost of some interfaces that is at a place of the screen; null if none is there.
QAccessibleInterface* InterfaceAt(int x, int y, const QVector<QAccessibleInterface*>& interfaces);

// What an item covers. A group that is empty itself covers what its children cover.
QRectF CoveredBy(const QGraphicsItem& item);

// What the items around an item do not clip of it, in scene coordinates.
QRectF UnclippedPart(const QGraphicsItem& item);

} // namespace kestro
