#include "model/PlixDiscardDataTree.h"

#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"

#include <cstddef>
#include <vector>

namespace plix {

void DiscardDataTree(const std::shared_ptr<PlixDataBubble>& bubble)
{
    std::vector<std::shared_ptr<PlixDataContainer>> containers;
    for (const auto& zone : bubble->GetZones())
        containers.push_back(zone.container);

    // Holds every item until the tree is taken apart. Then the items are freed one
    // after the other; no destructor frees another item.
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
