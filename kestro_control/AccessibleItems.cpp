#include "AccessibleItems.h"

#include "kestro_control/AccessibleGraphicsObject.h"

#include <QGraphicsObject>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>

#include <algorithm>

namespace kestro {

namespace {

constexpr QGraphicsItem::GraphicsItemFlags kHidesWhatIsOutside =
    QGraphicsItem::ItemClipsChildrenToShape | QGraphicsItem::ItemContainsChildrenInShape;

} // namespace

QGraphicsView* ViewOf(const QGraphicsScene* scene)
{
    if (!scene)
        return nullptr;
    const QList<QGraphicsView*> views = scene->views();
    const auto visible = std::find_if(views.begin(), views.end(),
                                      [](const QGraphicsView* view) { return view->isVisible(); });
    return visible == views.end() ? views.value(0) : *visible;
}

QAccessibleInterface* InterfaceOf(QGraphicsItem& item)
{
    return QAccessible::queryAccessibleInterface(item.toGraphicsObject());
}

bool IsLeftOut(const QAccessibleInterface* accessible)
{
    const auto* const own = dynamic_cast<const AccessibleGraphicsObject*>(accessible);
    return own && own->IsLeftOut();
}

QVector<QAccessibleInterface*> InterfacesOf(const QList<QGraphicsItem*>& items)
{
    QVector<QAccessibleInterface*> interfaces;
    for (QGraphicsItem* item : items) {
        QAccessibleInterface* const accessible = InterfaceOf(*item);
        const auto* const own = dynamic_cast<const AccessibleGraphicsObject*>(accessible);
        if (!accessible)
            interfaces += InterfacesOf(item->childItems());
        else if (own && own->ParentItem() != item->parentItem())
            continue; // clients find it in another place
        else if (own && own->IsLeftOut())
            interfaces += own->Children();
        else
            interfaces += accessible;
    }
    return interfaces;
}

QAccessibleInterface* FocusedInterface(const QGraphicsScene* scene)
{
    QGraphicsItem* const item = scene ? scene->focusItem() : nullptr;
    if (!item)
        return nullptr;
    if (const auto* const proxy = qgraphicsitem_cast<const QGraphicsProxyWidget*>(item)) {
        QWidget* const focused = proxy->widget() ? proxy->widget()->focusWidget() : nullptr;
        return QAccessible::queryAccessibleInterface(focused ? focused : proxy->widget());
    }
    QAccessibleInterface* accessible = InterfaceOf(*item);
    while (IsLeftOut(accessible))
        accessible = accessible->parent();
    return accessible;
}

QAccessibleInterface* InterfaceAt(int x, int y, const QVector<QAccessibleInterface*>& interfaces)
{
    const auto found = std::find_if(
        interfaces.rbegin(), interfaces.rend(), [x, y](const QAccessibleInterface* accessible) {
            return !accessible->state().invisible && accessible->rect().contains(x, y);
        });
    return found == interfaces.rend() ? nullptr : *found;
}

QRectF CoveredBy(const QGraphicsItem& item)
{
    const QRectF rect = item.boundingRect();
    return rect.isEmpty() ? item.childrenBoundingRect() : rect;
}

QRectF UnclippedPart(const QGraphicsItem& item)
{
    QRectF part = CoveredBy(item);
    const QGraphicsItem* inner = &item;
    while (const QGraphicsItem* const outer = inner->parentItem()) {
        part = inner->mapRectToParent(part);
        if (outer->flags() & kHidesWhatIsOutside)
            part &= outer->boundingRect();
        inner = outer;
    }
    return inner->mapRectToScene(part);
}

} // namespace kestro
