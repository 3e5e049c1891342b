#pragma once

#include "kestro_control/AccessibleGraphicsObject.h"

namespace kestro {

// What has the keyboard focus for a text that is selected: clients see the text instead.
class AccessibleSelectionFocus : public AccessibleGraphicsObject {
public:
    using AccessibleGraphicsObject::AccessibleGraphicsObject;

    bool IsLeftOut() const override { return true; }
};

} // namespace kestro
