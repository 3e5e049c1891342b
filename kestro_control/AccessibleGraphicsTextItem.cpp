#include "AccessibleGraphicsTextItem.h"

#include <QGraphicsTextItem>

namespace kestro {

AccessibleGraphicsTextItem::AccessibleGraphicsTextItem(QGraphicsTextItem& item)
    : AccessibleGraphicsObject(item)
{
}

QAccessible::Role AccessibleGraphicsTextItem::role() const
{
    const auto* const item = qobject_cast<const QGraphicsTextItem*>(object());
    return item && item->textInteractionFlags().testFlag(Qt::TextEditable)
        ? QAccessible::EditableText
        : QAccessible::StaticText;
}

QString AccessibleGraphicsTextItem::Name() const
{
    const auto* const item = qobject_cast<const QGraphicsTextItem*>(object());
    return item ? item->toPlainText() : QString();
}

} // namespace kestro
