#include "model/PlixDataItemCommon.h"

#include "model/PlixDataAncestors.h"
#include "model/PlixDataBox.h"

#include <memory>

PlixDataItemCommon::~PlixDataItemCommon() = default;

int PlixDataItemCommon::GetGrow() const
{
    return growIsDefault_ && plix::IsInVerticalBox(*this) ? 0 : grow_;
}

void PlixDataItemCommon::SetGrow(int grow)
{
    grow_ = grow;
    growIsDefault_ = false;
}

bool PlixDataItemCommon::IsAbsolute() const
{
    std::shared_ptr<PlixDataItem> parent;
    for (const PlixDataItemCommon* item = this; item;
         item = dynamic_cast<const PlixDataItemCommon*>(parent.get())) {
        if (item->fields_.View(PlixField::Position) == "absolute")
            return true;
        parent = item->GetParent();
    }
    return false;
}
