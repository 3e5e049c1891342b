#include "support/LayoutNode.h"

namespace plix::test {
namespace {

int silence(YGConfigConstRef, YGNodeConstRef, YGLogLevel, const char*, va_list)
{
    return 0;
}

// Yoga prints what it refuses; tests make it refuse much.
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
    // A node tells its parent: put one of ours in for a moment.
    LayoutNode probe;
    item.insertChild(&probe, item.childCount());
    return YGNodeGetParent(probe.node());
}

} // namespace plix::test
