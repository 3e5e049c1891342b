#include "ui/PlixWidgetUI.h"

PlixWidgetUI::PlixWidgetUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : QGraphicsWidget(parent)
    , YogaLayoutItem(false)
{
    setGeometryTarget(this);
    if (parentLayout)
        setParentLayoutItem(parentLayout);
}

// The host may have made an item movable or selectable that is not clicked: its
// events are the base's.
void PlixWidgetUI::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (TakesPresses())
        HandlePress(*event);
    else
        QGraphicsWidget::mousePressEvent(event);
}

void PlixWidgetUI::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    if (TakesPresses())
        HandleRelease(*event);
    else
        QGraphicsWidget::mouseReleaseEvent(event);
}
