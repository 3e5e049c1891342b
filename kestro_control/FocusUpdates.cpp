#include "FocusUpdates.h"

#include "AccessibleItems.h"

#include "kestro_control/AccessibilityUpdates.h"

#include <QAccessible>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>

namespace kestro {

FocusUpdates::FocusUpdates(QGraphicsView& view)
    : QObject(&view)
{
    view.installEventFilter(this);
    FollowScene();
    TellLater();
}

QGraphicsView* FocusUpdates::View() const
{
    return qobject_cast<QGraphicsView*>(parent());
}

// Nobody tells that the view has got another scene. But before its items get the focus, the
// view gets an event: its own focus, or a key.
bool FocusUpdates::eventFilter(QObject*, QEvent*)
{
    FollowScene();
    return false;
}

void FocusUpdates::FollowScene()
{
    const QGraphicsView* const view = View();
    if (!view || scene_ == view->scene())
        return;
    if (scene_)
        disconnect(scene_, nullptr, this, nullptr);
    scene_ = view->scene();
    if (scene_)
        connect(scene_, &QGraphicsScene::focusItemChanged, this, &FocusUpdates::TellLater);
}

// Later, because Qt tells clients of the view's own focus when the item has got it
// already: the last one that is told counts.
void FocusUpdates::TellLater()
{
    if (isPending_ || !HasAccessibilityClient())
        return;
    isPending_ = true;
    QMetaObject::invokeMethod(this, "Tell", Qt::QueuedConnection);
}

void FocusUpdates::Tell()
{
    isPending_ = false;
    const QGraphicsView* const view = View();
    if (!view || !view->hasFocus() || ViewOf(scene_) != view)
        return;
    if (QAccessibleInterface* const focused = FocusedInterface(scene_)) {
        QAccessibleEvent event(focused, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace kestro
