#pragma once

#include <kestro_control/AccessibleGraphicsObject.h>

// A card: a group with the name of its first text.
class PlixAccessibleCard : public kestro::AccessibleGraphicsObject {
public:
    using AccessibleGraphicsObject::AccessibleGraphicsObject;

protected:
    QString Name() const override;
};
