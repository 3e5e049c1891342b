#include "kestro_control/AccessibleGraphicsObject.h"

#include "AccessibleItems.h"
#include "ChildWalk.h"

#include <QGraphicsObject>
#include <QGraphicsView>
#include <QWindow>

namespace kestro {

namespace {

// Lengths on the screen are integers. Those of items have no limit.
constexpr qreal kFarthest = 1 << 24;
constexpr QRectF kEverywhere(-kFarthest, -kFarthest, 2 * kFarthest, 2 * kFarthest);

} // namespace

AccessibleGraphicsObject::AccessibleGraphicsObject(QGraphicsObject& item)
    : QAccessibleObject(&item)
    , children_(std::make_unique<ChildWalk>([this] { return Children(); }))
{
}

AccessibleGraphicsObject::~AccessibleGraphicsObject() = default;

QGraphicsObject* AccessibleGraphicsObject::Item() const
{
    return qobject_cast<QGraphicsObject*>(object());
}

QGraphicsView* AccessibleGraphicsObject::View() const
{
    const QGraphicsObject* const item = Item();
    return item ? ViewOf(item->scene()) : nullptr;
}

bool AccessibleGraphicsObject::IsLeftOut() const
{
    return false;
}

QGraphicsItem* AccessibleGraphicsObject::ParentItem() const
{
    const QGraphicsObject* const item = Item();
    return item ? item->parentItem() : nullptr;
}

QVector<QAccessibleInterface*> AccessibleGraphicsObject::Children() const
{
    const QGraphicsObject* const item = Item();
    return item ? InterfacesOf(item->childItems()) : QVector<QAccessibleInterface*>();
}

QWindow* AccessibleGraphicsObject::window() const
{
    const QGraphicsView* const view = View();
    return view ? view->window()->windowHandle() : nullptr;
}

QAccessibleInterface* AccessibleGraphicsObject::parent() const
{
    for (QGraphicsItem* item = ParentItem(); item; item = item->parentItem()) {
        QAccessibleInterface* const accessible = InterfaceOf(*item);
        if (accessible && !kestro::IsLeftOut(accessible))
            return accessible;
    }
    return QAccessible::queryAccessibleInterface(View());
}

QAccessibleInterface* AccessibleGraphicsObject::child(int index) const
{
    return children_->At(index);
}

int AccessibleGraphicsObject::childCount() const
{
    return children_->Count();
}

int AccessibleGraphicsObject::indexOfChild(const QAccessibleInterface* child) const
{
    return children_->IndexOf(child);
}

QAccessibleInterface* AccessibleGraphicsObject::childAt(int x, int y) const
{
    return InterfaceAt(x, y, Children());
}

QAccessibleInterface* AccessibleGraphicsObject::focusChild() const
{
    const QGraphicsObject* const item = Item();
    QAccessibleInterface* const focused = item ? FocusedInterface(item->scene()) : nullptr;
    const QAccessibleInterface* at = focused;
    while (at && at != this)
        at = at->parent();
    return at ? focused : nullptr;
}

QString AccessibleGraphicsObject::text(QAccessible::Text kind) const
{
    const QGraphicsObject* const item = Item();
    if (!item || kind != QAccessible::Name)
        return {};
    const QString given = item->property("accessibleName").toString();
    return given.isEmpty() ? Name() : given;
}

QRect AccessibleGraphicsObject::rect() const
{
    const QGraphicsObject* const item = Item();
    return item ? OnScreen(CoveredBy(*item)) : QRect();
}

QRect AccessibleGraphicsObject::OnScreen(const QRectF& rect) const
{
    const QGraphicsView* const view = View();
    if (!view)
        return {};
    const QTransform toView = Item()->deviceTransform(view->viewportTransform());
    const QRect inView = (toView.mapRect(rect) & kEverywhere).toAlignedRect();
    return {view->viewport()->mapToGlobal(inView.topLeft()), inView.size()};
}

QAccessible::Role AccessibleGraphicsObject::role() const
{
    return QAccessible::Grouping;
}

QAccessible::State AccessibleGraphicsObject::state() const
{
    QAccessible::State state;
    const QGraphicsObject* const item = Item();
    if (!item) {
        state.invalid = true;
        return state;
    }
    const QGraphicsItem* const focus = FocusItem();
    state.disabled = !item->isEnabled();
    state.focusable = CanGetFocus();
    state.focused = focus && focus->hasFocus();
    const QGraphicsView* const view = View();
    state.invisible = !view || !view->isVisible() || !item->isVisible();
    if (view) {
        const QRectF part = view->viewportTransform().mapRect(UnclippedPart(*item));
        state.offscreen = !part.intersects(view->viewport()->rect());
    }
    return state;
}

void* AccessibleGraphicsObject::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QStringList AccessibleGraphicsObject::actionNames() const
{
    QStringList names;
    const QGraphicsObject* const item = Item();
    if (item && item->isEnabled() && CanPress())
        names.append(pressAction());
    if (CanGetFocus())
        names.append(setFocusAction());
    return names;
}

void AccessibleGraphicsObject::doAction(const QString& name)
{
    if (!actionNames().contains(name))
        return;
    if (name == setFocusAction())
        TakeFocus();
    else
        Press();
}

QStringList AccessibleGraphicsObject::keyBindingsForAction(const QString&) const
{
    return {};
}

QString AccessibleGraphicsObject::Name() const
{
    return {};
}

QGraphicsItem* AccessibleGraphicsObject::FocusItem() const
{
    return Item();
}

bool AccessibleGraphicsObject::CanPress() const
{
    return false;
}

void AccessibleGraphicsObject::Press() { }

bool AccessibleGraphicsObject::CanGetFocus() const
{
    const QGraphicsItem* const item = FocusItem();
    return item && item->isEnabled() && item->flags().testFlag(QGraphicsItem::ItemIsFocusable);
}

void AccessibleGraphicsObject::TakeFocus()
{
    FocusItem()->setFocus(Qt::OtherFocusReason);
    if (QGraphicsView* const view = View())
        view->setFocus(Qt::OtherFocusReason);
}

} // namespace kestro
