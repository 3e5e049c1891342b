#include "support/LayoutNode.h"

namespace plix::test {

LayoutNode::LayoutNode()
    : LayoutNode(YGNodeNew())
{
}

LayoutNode::LayoutNode(YGNodeRef node)
    : YogaLayoutItem(node)
    , ownNode_(node)
{
}

YGNodeRef nodeOf(YogaLayoutItem& item)
{
    YogaLayoutItem* const parent = item.parentItem();
    for (int i = 0; parent && i < parent->childCount(); ++i) {
        if (parent->childAt(i) == &item)
            return YGNodeGetChild(nodeOf(*parent), static_cast<std::size_t>(i));
    }
    // A node tells its parent: put one of ours in for a moment.
    LayoutNode probe;
    item.insertChild(&probe, item.childCount());
    return YGNodeGetParent(probe.node());
}

} // namespace plix::test
