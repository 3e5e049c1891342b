#include "ui/PlixWidgetUI.h"

PlixWidgetUI::PlixWidgetUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : QGraphicsWidget(parent)
    , YogaLayoutItem(false)
{
    setGeometryTarget(this);
    if (parentLayout)
        setParentLayoutItem(parentLayout);
}

// An item that accepts no presses leaves its events to Qt: the host may have made it
// movable or selectable.
void PlixWidgetUI::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (AcceptsPresses())
        HandlePress(*event);
    else
        QGraphicsWidget::mousePressEvent(event);
}

void PlixWidgetUI::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    if (AcceptsPresses())
        HandleRelease(*event);
    else
        QGraphicsWidget::mouseReleaseEvent(event);
}
