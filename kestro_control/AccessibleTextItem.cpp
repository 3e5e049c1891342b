#include "kestro_control/AccessibleTextItem.h"

#include <QBrush>
#include <QGraphicsView>

#include <algorithm>

namespace kestro {

AccessibleTextItem::AccessibleTextItem(TextItem& item)
    : AccessibleGraphicsObject(item)
{
}

AccessibleTextItem::~AccessibleTextItem() = default;

TextItem* AccessibleTextItem::Text() const
{
    return qobject_cast<TextItem*>(object());
}

QString AccessibleTextItem::Name() const
{
    const TextItem* const item = Text();
    return item ? item->toPlainText() : QString();
}

QAccessible::Role AccessibleTextItem::role() const
{
    const TextItem* const item = Text();
    return item && !item->IsReadOnly() ? QAccessible::EditableText : QAccessible::StaticText;
}

QAccessible::State AccessibleTextItem::state() const
{
    QAccessible::State state = AccessibleGraphicsObject::state();
    const bool isEditable = role() == QAccessible::EditableText;
    state.readOnly = !isEditable;
    state.editable = isEditable;
    return state;
}

void* AccessibleTextItem::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                              : AccessibleGraphicsObject::interface_cast(type);
}

QString AccessibleTextItem::text(int start, int end) const
{
    return Name().mid(start, std::max(0, end - start));
}

int AccessibleTextItem::characterCount() const
{
    return Name().size();
}

QRect AccessibleTextItem::characterRect(int offset) const
{
    const TextItem* const item = Text();
    const QRectF rect = item ? item->CharacterRect(offset) : QRectF();
    return rect.isEmpty() ? QRect() : OnScreen(rect);
}

int AccessibleTextItem::offsetAtPoint(const QPoint& point) const
{
    const TextItem* const item = Text();
    const QGraphicsView* const view = View();
    if (!item || !view)
        return -1;
    const QTransform toView = item->deviceTransform(view->viewportTransform());
    const QPointF middle = QPointF(view->viewport()->mapFromGlobal(point)) + QPointF(0.5, 0.5);
    return item->CharacterAt(toView.inverted().map(middle));
}

void AccessibleTextItem::scrollToSubstring(int start, int end)
{
    const TextItem* const item = Text();
    QGraphicsView* const view = View();
    if (!item || !view || start >= end)
        return;
    const QRectF rect = item->CharacterRect(start) | item->CharacterRect(end - 1);
    if (!rect.isEmpty())
        view->ensureVisible(item->mapRectToScene(rect));
}

QString AccessibleTextItem::attributes(int offset, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    const TextItem* const item = Text();
    if (!item)
        return {};
    for (const auto& [first, last] : item->HighlightedRanges()) {
        if (offset >= first && offset < last) {
            *start = first;
            *end = last;
            const QColor color = item->HighlightBrush().color();
            return QStringLiteral("background-color:rgb(%1,%2,%3);")
                .arg(color.red())
                .arg(color.green())
                .arg(color.blue());
        }
        // The parts between highlights have no attributes.
        if (last <= offset)
            *start = last;
        else if (first > offset)
            *end = std::min(*end, first);
    }
    return {};
}

void AccessibleTextItem::selection(int, int* start, int* end) const
{
    *start = 0;
    *end = 0;
}

} // namespace kestro
