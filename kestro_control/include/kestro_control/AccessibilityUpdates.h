// What graphics items tell the clients of QAccessible, such as screen readers.
#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QAccessible>

class QGraphicsObject;

namespace kestro {

// Whether clients want to be told of changes. Follows QAccessible::setActive(), which
// the platform calls when a client appears.
KESTRO_CONTROL_API bool HasAccessibilityClient();

// Tells clients of a change of `item`. Does nothing if there are none, or if the item is
// in no scene. `change` must not be an event that has a class of its own, such as
// QAccessible::TextUpdated.
KESTRO_CONTROL_API void TellAccessibilityClients(QGraphicsObject& item, QAccessible::Event change);

} // namespace kestro
