#pragma once

#include "ui/accessibility/PlixPressable.h"

#include <kestro_control/AccessibleGraphicsObject.h>

// An image or an icon. Its name is the label of its action, the only words about it.
class PlixAccessiblePicture : public PlixPressable<kestro::AccessibleGraphicsObject> {
public:
    using PlixPressable::PlixPressable;

    QAccessible::Role role() const override { return QAccessible::Graphic; }

protected:
    QString Name() const override;
};
