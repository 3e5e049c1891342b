#include "ui/PlixWidgetUI.h"

#include "ui/PlixFocusRing.h"
#include "ui/PlixFocusStop.h"

#include <QKeyEvent>

PlixWidgetUI::PlixWidgetUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : QGraphicsWidget(parent)
    , YogaLayoutItem(false)
{
    setGeometryTarget(this);
    if (parentLayout)
        setParentLayoutItem(parentLayout);
}

void PlixWidgetUI::InitFocus()
{
    if (hasOwnAction_)
        setFocusPolicy(Qt::TabFocus);
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

void PlixWidgetUI::focusInEvent(QFocusEvent*)
{
    PlixFocusRing::Show(*this, CornerRadius());
}

void PlixWidgetUI::focusOutEvent(QFocusEvent*)
{
    PlixFocusRing::Hide(*this);
}

void PlixWidgetUI::keyPressEvent(QKeyEvent* event)
{
    if (!hasOwnAction_ || !PlixFocusStop::IsClick(*event)) {
        QGraphicsWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    DeliverClick(); // the host may delete the item
}
