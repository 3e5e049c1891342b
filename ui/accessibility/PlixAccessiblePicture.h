#pragma once

#include "ui/accessibility/PlixPressable.h"

#include <kestro_control/AccessibleGraphicsObject.h>

// An image or an icon. Its name is that of its action: the card has no other words about it.
class PlixAccessiblePicture : public PlixPressable<kestro::AccessibleGraphicsObject> {
public:
    using PlixPressable::PlixPressable;

    QAccessible::Role role() const override { return QAccessible::Graphic; }

protected:
    QString Name() const override;
};
