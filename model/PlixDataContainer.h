#pragma once

#include "layout/PlixLimits.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

class PlixDataItem;

// The ordered children of a zone or a box.
class PlixDataContainer {
public:
    PlixDataContainer() = default;
    virtual ~PlixDataContainer();

    PlixDataContainer(const PlixDataContainer&) = delete;
    PlixDataContainer& operator=(const PlixDataContainer&) = delete;

    // Sets the parent of the children that are added from now on. This list shares
    // its ownership; Clear() breaks the cycle.
    void SetOwner(std::shared_ptr<PlixDataItem> owner);

    // Make room for that many children, but not for more than a card may have, and free
    // what is left of it.
    void Reserve(std::size_t count)
    {
        children_.reserve(std::min<std::size_t>(count, plix::kMaximumItems));
    }
    void ShrinkToFit() { children_.shrink_to_fit(); }
    void AddChild(const std::shared_ptr<PlixDataItem>& child);
    int GetChildCount() const;
    // Null if there is no such child.
    std::shared_ptr<PlixDataItem> GetChild(int index) const;
    const std::vector<std::shared_ptr<PlixDataItem>>& GetChildren() const { return children_; }

    // Releases the children and the owner.
    void Clear();

private:
    std::vector<std::shared_ptr<PlixDataItem>> children_;
    std::shared_ptr<PlixDataItem> owner_;
};
