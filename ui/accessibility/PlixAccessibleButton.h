#pragma once

#include "ui/accessibility/PlixPressable.h"

#include <kestro_control/AccessibleGraphicsObject.h>

// A button, or a box with an action. Its name is what it says or, if it says nothing, that of
// its action. The items in a box are its children: they may have more actions.
class PlixAccessibleButton : public PlixPressable<kestro::AccessibleGraphicsObject> {
public:
    using PlixPressable::PlixPressable;

    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override;

protected:
    QString Name() const override;
};
