#pragma once

#include "layout/YogaLayoutItem.h"

#include <yoga/Yoga.h>

namespace plix::test {

// A layout item whose node the test can read.
class LayoutNode : public YogaLayoutItem {
public:
    LayoutNode();
    // Takes ownership of `node`, which may be null.
    explicit LayoutNode(YGNodeRef node);

    YGNodeRef node() const { return ownNode_; }

private:
    YGNodeRef ownNode_;
};

// The node of an item of a card. `item` must be in a box, or able to have children.
YGNodeRef nodeOf(YogaLayoutItem& item);

} // namespace plix::test
