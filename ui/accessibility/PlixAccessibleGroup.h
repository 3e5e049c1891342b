#pragma once

#include <kestro_control/AccessibleGraphicsObject.h>

#include <QGraphicsObject>

// A box without an action. An empty one is only decoration.
class PlixAccessibleGroup : public kestro::AccessibleGraphicsObject {
public:
    using AccessibleGraphicsObject::AccessibleGraphicsObject;

    bool IsLeftOut() const override { return !Item() || Item()->childItems().isEmpty(); }
};
