#include "AccessibleProxyWidget.h"

#include <QGraphicsProxyWidget>
#include <QWidget>

namespace kestro {

AccessibleProxyWidget::AccessibleProxyWidget(QGraphicsProxyWidget& item)
    : AccessibleGraphicsObject(item)
{
}

QVector<QAccessibleInterface*> AccessibleProxyWidget::Children() const
{
    const auto* const item = qobject_cast<const QGraphicsProxyWidget*>(object());
    QAccessibleInterface* const widget =
        QAccessible::queryAccessibleInterface(item ? item->widget() : nullptr);
    return widget ? QVector<QAccessibleInterface*> {widget} : QVector<QAccessibleInterface*>();
}

} // namespace kestro
