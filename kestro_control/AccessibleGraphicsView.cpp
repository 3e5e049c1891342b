#include "AccessibleGraphicsView.h"

#include "AccessibleItems.h"
#include "FocusUpdates.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>

#include <algorithm>
#include <tuple>
#include <vector>

namespace kestro {

namespace {

// The items without a parent, in the order in which they are read.
QList<QGraphicsItem*> TopItems(const QGraphicsScene& scene)
{
    struct Placed {
        QGraphicsItem* item;
        std::tuple<qreal, qreal, qreal> place;
    };
    std::vector<Placed> placed;
    for (QGraphicsItem* item : scene.items(Qt::AscendingOrder)) {
        if (item->parentItem())
            continue;
        const QRectF rect = item->mapRectToScene(CoveredBy(*item));
        placed.push_back({item, {item->zValue(), rect.top(), rect.left()}});
    }
    std::stable_sort(placed.begin(), placed.end(), [](const Placed& one, const Placed& other) {
        return one.place < other.place;
    });
    QList<QGraphicsItem*> items;
    for (const Placed& each : placed)
        items.append(each.item);
    return items;
}

} // namespace

AccessibleGraphicsView::AccessibleGraphicsView(QGraphicsView& view)
    : QAccessibleWidget(&view, QAccessible::Pane)
    , items_([this] { return Items(); })
{
    new FocusUpdates(view);
}

QGraphicsView* AccessibleGraphicsView::View() const
{
    return qobject_cast<QGraphicsView*>(object());
}

QVector<QAccessibleInterface*> AccessibleGraphicsView::Items() const
{
    const QGraphicsView* const view = View();
    const QGraphicsScene* const scene = view ? view->scene() : nullptr;
    return scene && ViewOf(scene) == view ? InterfacesOf(TopItems(*scene))
                                          : QVector<QAccessibleInterface*>();
}

QAccessibleInterface* AccessibleGraphicsView::child(int index) const
{
    if (QAccessibleInterface* const item = items_.At(index))
        return item;
    return QAccessibleWidget::child(index - items_.Count());
}

int AccessibleGraphicsView::childCount() const
{
    return items_.Count() + QAccessibleWidget::childCount();
}

int AccessibleGraphicsView::indexOfChild(const QAccessibleInterface* child) const
{
    const int item = items_.IndexOf(child);
    if (item >= 0)
        return item;
    const int widget = QAccessibleWidget::indexOfChild(child);
    return widget < 0 ? -1 : items_.Count() + widget;
}

// Widgets on the viewport are above the items.
QAccessibleInterface* AccessibleGraphicsView::childAt(int x, int y) const
{
    const QGraphicsView* const view = View();
    QWidget* widget = view ? view->childAt(view->mapFromGlobal({x, y})) : nullptr;
    if (view && widget == view->viewport()) {
        if (QAccessibleInterface* const item = InterfaceAt(x, y, Items()))
            return item;
    }
    while (widget && widget->parentWidget() != view)
        widget = widget->parentWidget();
    return QAccessible::queryAccessibleInterface(widget);
}

QAccessibleInterface* AccessibleGraphicsView::focusChild() const
{
    const QGraphicsView* const view = View();
    if (view && view->hasFocus() && ViewOf(view->scene()) == view) {
        if (QAccessibleInterface* const item = FocusedInterface(view->scene()))
            return item;
    }
    return QAccessibleWidget::focusChild();
}

} // namespace kestro
