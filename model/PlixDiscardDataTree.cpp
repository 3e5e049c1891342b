#include "model/PlixDiscardDataTree.h"

#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"

#include <utility>

namespace plix {

namespace {

// Items that are out of their containers. Each holds the next one as its parent, so that
// the list takes no memory.
class DiscardedItems {
public:
    void Take(PlixDataContainer& container)
    {
        for (const auto& child : container.GetChildren()) {
            child->SetParent(std::move(first_));
            first_ = child;
        }
        container.Clear();
    }

    // Null if there is none.
    std::shared_ptr<PlixDataItem> Pop()
    {
        if (!first_)
            return nullptr;
        std::shared_ptr<PlixDataItem> item = std::exchange(first_, first_->GetParent());
        item->SetParent(nullptr);
        return item;
    }

private:
    std::shared_ptr<PlixDataItem> first_;
};

} // namespace

void DiscardDataTree(const std::shared_ptr<PlixDataBubble>& bubble)
{
    DiscardedItems items;
    for (const auto& zone : bubble->GetZones()) {
        if (zone.container)
            items.Take(*zone.container);
    }
    while (const std::shared_ptr<PlixDataItem> item = items.Pop()) {
        if (const auto* box = dynamic_cast<const PlixDataBox*>(item.get()))
            items.Take(*box->GetContainer());
    }
}

} // namespace plix
