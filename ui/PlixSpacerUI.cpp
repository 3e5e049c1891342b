#include "ui/PlixSpacerUI.h"

#include "model/PlixDataAncestors.h"
#include "model/PlixDataSpacer.h"

PlixSpacerUI::PlixSpacerUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : PlixWidgetUI(parent, parentLayout)
{
    setFlag(ItemHasNoContents);
}

bool PlixSpacerUI::Init()
{
    const auto data = FindData<PlixDataSpacer>();
    if (!data)
        return false;
    const double size = data->GetSizePixels();
    if (plix::IsInVerticalBox(*data))
        setHeight(size);
    else
        setWidth(size);
    return true;
}
