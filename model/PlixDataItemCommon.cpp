#include "model/PlixDataItemCommon.h"

#include "layout/PlixKeywordTable.h"
#include "model/PlixDataAncestors.h"
#include "model/PlixDataBox.h"
#include "model/format/PlixWords.h"

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

bool PlixDataItemCommon::HasAbsolutePosition() const
{
    return plix::FindKeyword(plix::kPositions, fields_.View(PlixField::Position))
        == PlixPosition::Absolute;
}

bool PlixDataItemCommon::IsAbsolute() const
{
    std::shared_ptr<PlixDataItem> parent;
    for (const PlixDataItemCommon* item = this; item;
         item = dynamic_cast<const PlixDataItemCommon*>(parent.get())) {
        if (item->HasAbsolutePosition())
            return true;
        parent = item->GetParent();
    }
    return false;
}
