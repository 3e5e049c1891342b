#include "support/Mouse.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>

namespace plix::test {
namespace {

void setUp(QGraphicsSceneMouseEvent& event, Qt::MouseButton button, const QPointF& at)
{
    event.setButton(button);
    event.setButtons(event.type() == QEvent::GraphicsSceneMousePress ? button : Qt::NoButton);
    event.setScenePos(at);
    event.setButtonDownScenePos(button, at);
    event.setAccepted(true);
}

bool sendTo(QGraphicsItem& item, QEvent::Type type, Qt::MouseButton button)
{
    // Items take events within a scene only.
    QGraphicsItem* const root = item.topLevelItem();
    QGraphicsScene scene;
    scene.addItem(root);
    QGraphicsSceneMouseEvent event(type);
    setUp(event, button, item.sceneBoundingRect().center());
    event.setPos(item.boundingRect().center());
    scene.sendEvent(&item, &event);
    scene.removeItem(root);
    return event.isAccepted();
}

} // namespace

void click(QGraphicsItem& root, const QPointF& at, Qt::MouseButton button)
{
    QGraphicsScene scene;
    scene.addItem(&root);
    for (const QEvent::Type type :
         {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseRelease}) {
        QGraphicsSceneMouseEvent event(type);
        setUp(event, button, at);
        QApplication::sendEvent(&scene, &event);
    }
    scene.removeItem(&root);
}

bool pressOn(QGraphicsItem& item, Qt::MouseButton button)
{
    return sendTo(item, QEvent::GraphicsSceneMousePress, button);
}

bool releaseOn(QGraphicsItem& item, Qt::MouseButton button)
{
    return sendTo(item, QEvent::GraphicsSceneMouseRelease, button);
}

} // namespace plix::test
