#include "ClickBelow.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QPointer>

namespace kestro {

namespace {

// All items at a position in the scene, the top one first.
QList<QGraphicsItem*> ItemsAt(const QPointF& position, const QGraphicsScene& scene,
                              const QWidget* viewport)
{
    const auto* const view =
        viewport ? qobject_cast<const QGraphicsView*>(viewport->parentWidget()) : nullptr;
    return scene.items(position, Qt::IntersectsItemShape, Qt::DescendingOrder,
                       view ? view->viewportTransform() : QTransform());
}

// Sends an item a part of the click. Returns whether the item accepts it.
bool Send(QEvent::Type type, QGraphicsItem& receiver, const QGraphicsSceneMouseEvent& release,
          const QPointF& pressedAt)
{
    const bool isPress = type == QEvent::GraphicsSceneMousePress;
    const QPointF at = isPress ? pressedAt : release.scenePos();
    QGraphicsSceneMouseEvent event(type);
    event.setWidget(release.widget());
    event.setButton(Qt::LeftButton);
    event.setButtons(isPress ? release.buttons() | Qt::LeftButton : release.buttons());
    event.setModifiers(release.modifiers());
    event.setScenePos(at);
    event.setLastScenePos(pressedAt);
    event.setScreenPos(release.screenPos());
    event.setLastScreenPos(release.screenPos());
    event.setPos(receiver.mapFromScene(at));
    event.setLastPos(receiver.mapFromScene(pressedAt));
    event.setButtonDownScenePos(Qt::LeftButton, pressedAt);
    event.setButtonDownScreenPos(Qt::LeftButton, release.screenPos());
    event.setButtonDownPos(Qt::LeftButton, receiver.mapFromScene(pressedAt));
    event.accept();
    receiver.scene()->sendEvent(&receiver, &event);
    return event.isAccepted();
}

} // namespace

void PassClickBelow(QGraphicsItem& item, const QGraphicsSceneMouseEvent& release,
                    const QPointF& pressedAt)
{
    const QPointer<QGraphicsScene> scene = item.scene();
    if (!scene)
        return;
    const auto itemsThere = [&] { return ItemsAt(pressedAt, *scene, release.widget()); };
    const QList<QGraphicsItem*> items = itemsThere();
    int i = items.indexOf(&item);
    if (scene->mouseGrabberItem() == &item)
        item.ungrabMouse();
    while (++i < items.size()) {
        QGraphicsItem* const below = items[i];
        // A press may delete any item, and the scene.
        const auto isThere = [&] { return scene && itemsThere().contains(below); };
        const bool isClicked = isThere() && below->acceptedMouseButtons().testFlag(Qt::LeftButton)
            && Send(QEvent::GraphicsSceneMousePress, *below, release, pressedAt);
        if (isClicked && isThere())
            Send(QEvent::GraphicsSceneMouseRelease, *below, release, pressedAt);
        if (isClicked)
            return;
    }
}

} // namespace kestro
