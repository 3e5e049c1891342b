#include "support/LayoutNode.h"

namespace plix::test {
namespace {

int silence(YGConfigConstRef, YGNodeConstRef, YGLogLevel, const char*, va_list)
{
    return 0;
}

// Yoga prints errors, and tests provoke many.
YGNodeRef makeQuietNode()
{
    static const YGConfigRef config = [] {
        YGConfigRef made = YGConfigNew();
        YGConfigSetLogger(made, &silence);
        return made;
    }();
    return YGNodeNewWithConfig(config);
}

} // namespace

LayoutNode::LayoutNode()
    : LayoutNode(makeQuietNode())
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
    // A node knows its parent, so a temporary child tells the node of `item`.
    LayoutNode probe;
    item.insertChild(&probe, item.childCount());
    return YGNodeGetParent(probe.node());
}

} // namespace plix::test
