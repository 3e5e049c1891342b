#pragma once

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

    // The item that becomes the parent of every child added from now on. Held
    // strongly: Clear() breaks the cycle.
    void SetOwner(std::shared_ptr<PlixDataItem> owner);

    void AddChild(const std::shared_ptr<PlixDataItem>& child);
    int GetChildCount() const;
    // Null when there is no such child.
    std::shared_ptr<PlixDataItem> GetChild(int index) const;
    const std::vector<std::shared_ptr<PlixDataItem>>& GetChildren() const { return children_; }

    // Lets go of the children and of the owner.
    void Clear();

private:
    std::vector<std::shared_ptr<PlixDataItem>> children_;
    std::shared_ptr<PlixDataItem> owner_;
};
