#include "ui/PlixWidgetUI.h"

PlixWidgetUI::PlixWidgetUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : QGraphicsWidget(parent)
    , YogaLayoutItem(false)
{
    setGeometryTarget(this);
    if (parentLayout)
        setParentLayoutItem(parentLayout);
}
