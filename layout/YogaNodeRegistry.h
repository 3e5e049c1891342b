#pragma once

#include <yoga/Yoga.h>

#include <map>

class YogaLayoutItem;

// Finds the item of a node, process-wide, for Yoga's callbacks and for walks
// over the node tree. Holds every item that is a child of another.
class YogaNodeRegistry {
public:
    static YogaNodeRegistry& GetInstance();

    void add(YGNodeConstRef node, YogaLayoutItem* item);
    void remove(YGNodeConstRef node);
    // Null for a node that is not registered, and for a null node.
    YogaLayoutItem* find(YGNodeConstRef node) const;

private:
    YogaNodeRegistry() = default;

    std::map<YGNodeConstRef, YogaLayoutItem*> items_;
};
