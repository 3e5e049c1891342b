#include "ui/PlixSpacerUI.h"

#include "model/PlixDataLeaves.h"
#include "model/PlixDataTree.h"

PlixSpacerUI::PlixSpacerUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : PlixWidgetUI(parent, parentLayout)
{
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
