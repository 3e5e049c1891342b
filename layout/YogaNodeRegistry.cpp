#include "layout/YogaNodeRegistry.h"

YogaNodeRegistry& YogaNodeRegistry::GetInstance()
{
    // Never destroyed: the host may delete items after static objects.
    static auto* const instance = new YogaNodeRegistry;
    return *instance;
}

void YogaNodeRegistry::add(YGNodeConstRef node, YogaLayoutItem* item)
{
    items_[node] = item;
}

void YogaNodeRegistry::remove(YGNodeConstRef node)
{
    items_.erase(node);
}

YogaLayoutItem* YogaNodeRegistry::find(YGNodeConstRef node) const
{
    const auto found = items_.find(node);
    return found == items_.end() ? nullptr : found->second;
}
