#include "model/PlixDataAncestors.h"

#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"

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
        if (parent->GetType() != PlixKindBubble)
            continue;
        if (const auto* bubble = dynamic_cast<const PlixDataBubble*>(parent.get()))
            return bubble->IsRightToLeft();
    }
    return false;
}

} // namespace plix
