#include "ui/PlixFillerUI.h"

#include "model/PlixDataAncestors.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataFiller.h"

namespace {

constexpr double kFillerSize = 5;
constexpr double kCollapsed = 1;

} // namespace

PlixFillerUI::PlixFillerUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : PlixWidgetUI(parent, parentLayout)
{
    setFlag(ItemHasNoContents);
}

bool PlixFillerUI::Init()
{
    const auto data = FindData<PlixDataFiller>();
    if (!data)
        return false;
    const std::shared_ptr<PlixDataBox> box = plix::ParentBox(*data);
    const bool inColumn = box && box->IsVertical();
    const int grow = data->IsFlexDefault() && inColumn ? 0 : data->GetGrow();
    if (inColumn) {
        if (grow == 0)
            setHeight(kCollapsed);
        setWidth(kFillerSize);
    } else if (box && box->IsHorizontal()) {
        if (grow == 0)
            setWidth(kCollapsed);
        setHeight(kFillerSize);
    }
    setGrowFactor(grow);
    return true;
}
