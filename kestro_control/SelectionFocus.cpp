#include "SelectionFocus.h"

#include "ItemSelection.h"

#include <QKeyEvent>
#include <QPainterPath>
#include <QPointer>
#include <QWidget>

namespace kestro {

SelectionFocus::SelectionFocus(QGraphicsItem& item, ItemSelection& selection)
    : QGraphicsWidget(&item)
    , selection_(selection)
{
    setAcceptedMouseButtons(Qt::NoButton);
    setFlag(ItemHasNoContents);
    setFlag(ItemIsFocusable);
    setGeometry(item.boundingRect());
}

void SelectionFocus::Take(QWidget* viewport)
{
    const QPointer<QWidget> view = viewport ? viewport->parentWidget() : nullptr;
    if (view && view->focusPolicy() == Qt::NoFocus)
        return;
    setFocus(Qt::MouseFocusReason);
    if (view)
        view->setFocus(Qt::MouseFocusReason);
}

QPainterPath SelectionFocus::shape() const
{
    return {};
}

// Keys of the selection are no shortcuts of the host.
bool SelectionFocus::sceneEvent(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QGraphicsWidget::sceneEvent(event);
    event->setAccepted(selection_.IsKey(static_cast<const QKeyEvent&>(*event)));
    return true;
}

void SelectionFocus::keyPressEvent(QKeyEvent* event)
{
    if (!selection_.IsKey(*event)) {
        QGraphicsWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    selection_.HandleKey(*event); // slots may delete this item
}

// The focus changes the colours of the selection.

void SelectionFocus::focusInEvent(QFocusEvent*)
{
    parentItem()->update();
}

void SelectionFocus::focusOutEvent(QFocusEvent*)
{
    parentItem()->update();
}

} // namespace kestro
