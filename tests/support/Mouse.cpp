#include "support/Mouse.h"

#include "support/Keyboard.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>

#include <cmath>

namespace plix::test {
namespace {

constexpr double kSpaceAroundCard = 40;

} // namespace

CardView::CardView(QGraphicsItem& root)
    : view_(&scene_)
{
    add(root);
    const double space = kSpaceAroundCard;
    scene_.setSceneRect(root.sceneBoundingRect().adjusted(-space, -space, space, space));
    view_.setFrameStyle(QFrame::NoFrame);
    view_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_.resize(scene_.sceneRect().size().toSize());
    view_.show();
}

CardView::~CardView()
{
    for (const QPointer<QGraphicsObject>& root : roots_) {
        if (root && root->scene() == &scene_)
            scene_.removeItem(root);
    }
}

void CardView::add(QGraphicsItem& root)
{
    scene_.addItem(&root);
    roots_.emplace_back(root.toGraphicsObject());
}

void CardView::moveTo(const QPointF& at)
{
    const QPointF position = view_.viewportTransform().map(at);
    const QPoint pixel(static_cast<int>(std::floor(position.x())),
                       static_cast<int>(std::floor(position.y())));
    if (pixel == pixel_)
        return;
    pixel_ = pixel;
    send(QEvent::MouseMove, Qt::NoButton);
}

void CardView::press(const QPointF& at, Qt::MouseButton button)
{
    press(QEvent::MouseButtonPress, at, button);
}

void CardView::pressAgain(const QPointF& at, Qt::MouseButton button)
{
    press(QEvent::MouseButtonDblClick, at, button);
}

void CardView::press(QEvent::Type type, const QPointF& at, Qt::MouseButton button)
{
    moveTo(at);
    buttons_ |= button;
    send(type, button);
}

void CardView::release(const QPointF& at, Qt::MouseButton button)
{
    moveTo(at);
    buttons_ &= ~Qt::MouseButtons(button);
    send(QEvent::MouseButtonRelease, button);
}

void CardView::click(const QPointF& at, Qt::MouseButton button)
{
    press(at, button);
    release(at, button);
}

void CardView::doubleClick(const QPointF& at, Qt::MouseButton button)
{
    click(at, button);
    pressAgain(at, button);
    release(at, button);
}

void CardView::drag(const QPointF& from, const QPointF& to)
{
    press(from);
    release(to);
}

QMenu* CardView::openMenu(const QPointF& at)
{
    click(at, Qt::RightButton);
    QWidget* const viewport = view_.viewport();
    QContextMenuEvent event(QContextMenuEvent::Mouse, pixel_, viewport->mapToGlobal(pixel_));
    QApplication::sendEvent(viewport, &event);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QString CardView::toolTipAt(const QPointF& at)
{
    moveTo(at);
    QHelpEvent event(QEvent::ToolTip, pixel_, view_.viewport()->mapToGlobal(pixel_));
    QApplication::sendEvent(view_.viewport(), &event);
    const QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
    // Otherwise it would stay for a while.
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->windowType() == Qt::ToolTip)
            window->close();
    }
    return text;
}

void CardView::pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    test::pressKey(view_, key, modifiers);
}

void CardView::send(QEvent::Type type, Qt::MouseButton button)
{
    QWidget* const viewport = view_.viewport();
    QMouseEvent event(type, pixel_, viewport->mapTo(&view_, pixel_), viewport->mapToGlobal(pixel_),
                      button, buttons_, held_);
    QApplication::sendEvent(viewport, &event);
}

void click(QGraphicsItem& root, const QPointF& at, Qt::MouseButton button)
{
    CardView(root).click(at, button);
}

} // namespace plix::test
