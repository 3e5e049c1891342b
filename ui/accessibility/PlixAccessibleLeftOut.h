#pragma once

#include <kestro_control/AccessibleGraphicsObject.h>

// An item that says nothing: a line, free space, the focus ring.
class PlixAccessibleLeftOut : public kestro::AccessibleGraphicsObject {
public:
    using AccessibleGraphicsObject::AccessibleGraphicsObject;

    bool IsLeftOut() const override { return true; }
};
