#include "model/PlixDataContainer.h"

#include "model/PlixDataItem.h"

#include <cstddef>
#include <utility>

PlixDataContainer::~PlixDataContainer() = default;

void PlixDataContainer::SetOwner(std::shared_ptr<PlixDataItem> owner)
{
    owner_ = std::move(owner);
}

void PlixDataContainer::AddChild(const std::shared_ptr<PlixDataItem>& child)
{
    child->SetParent(owner_);
    children_.push_back(child);
}

int PlixDataContainer::GetChildCount() const
{
    return static_cast<int>(children_.size());
}

std::shared_ptr<PlixDataItem> PlixDataContainer::GetChild(int index) const
{
    return index >= 0 && index < GetChildCount() ? children_[static_cast<std::size_t>(index)]
                                                 : nullptr;
}

void PlixDataContainer::Clear()
{
    children_.clear();
    owner_.reset();
}
