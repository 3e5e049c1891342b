#pragma once

#include "ui/accessibility/PlixPressable.h"

#include <kestro_control/AccessibleTextItem.h>

// A text, with the mentions in it as children. A text with an action is a link.
class PlixAccessibleText : public PlixPressable<kestro::AccessibleTextItem> {
public:
    using PlixPressable::PlixPressable;

    QVector<QAccessibleInterface*> Children() const override;
    QAccessible::Role role() const override;

protected:
    QGraphicsItem* FocusItem() const override;
};
