#include "model/PlixDataTree.h"

#include <vector>

namespace plix {

std::shared_ptr<PlixDataBox> ParentBox(const PlixDataItem& item)
{
    return std::dynamic_pointer_cast<PlixDataBox>(item.GetParent());
}

bool IsInVerticalBox(const PlixDataItem& item)
{
    const std::shared_ptr<PlixDataBox> box = ParentBox(item);
    return box && box->IsVertical();
}

bool IsInRow(const PlixDataItem& item)
{
    const std::shared_ptr<PlixDataBox> box = ParentBox(item);
    return box && !box->IsVertical();
}

bool IsInRightToLeftBubble(const PlixDataItem& item)
{
    for (std::shared_ptr<PlixDataItem> parent = item.GetParent(); parent;
         parent = parent->GetParent()) {
        if (const auto* bubble = dynamic_cast<const PlixDataBubble*>(parent.get()))
            return bubble->IsRightToLeft();
    }
    return false;
}

void DiscardDataTree(const std::shared_ptr<PlixDataBubble>& bubble)
{
    std::vector<std::shared_ptr<PlixDataContainer>> containers;
    for (const auto& zone : bubble->GetZones())
        containers.push_back(zone.container);

    // Collected before anything is cut, so that the items are freed one after
    // the other when this list goes, and not one inside the other.
    std::vector<std::shared_ptr<PlixDataItem>> items;
    for (std::size_t i = 0; i < containers.size(); ++i) {
        const std::shared_ptr<PlixDataContainer> container = containers[i];
        if (!container)
            continue;
        for (const auto& child : container->GetChildren()) {
            items.push_back(child);
            if (const auto* box = dynamic_cast<const PlixDataBox*>(child.get()))
                containers.push_back(box->GetContainer());
        }
    }
    for (const auto& container : containers) {
        if (container)
            container->Clear();
    }
    for (const auto& item : items)
        item->SetParent(nullptr);
}

} // namespace plix
