#include "kestro_control/AccessibleTextItem.h"

#include "SelectionFocus.h"

#include <QBrush>
#include <QGraphicsObject>
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
    const TextItem* const item = Text();
    state.selectableText = item && item->textInteractionFlags().testFlag(Qt::TextSelectableByMouse);
    return state;
}

QGraphicsItem* AccessibleTextItem::FocusItem() const
{
    const QList<QGraphicsItem*> children = Item() ? Item()->childItems() : QList<QGraphicsItem*>();
    const auto focus = std::find_if(children.begin(), children.end(), [](QGraphicsItem* child) {
        return qobject_cast<SelectionFocus*>(child->toGraphicsObject());
    });
    return focus == children.end() ? AccessibleGraphicsObject::FocusItem() : *focus;
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

int AccessibleTextItem::selectionCount() const
{
    const TextItem* const item = Text();
    return item && item->HasSelection() ? 1 : 0;
}

void AccessibleTextItem::selection(int index, int* start, int* end) const
{
    const TextItem* const item = Text();
    const QPair<int, int> range = item && index == 0 ? item->SelectedRange() : QPair<int, int>();
    *start = range.first;
    *end = range.second;
}

void AccessibleTextItem::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void AccessibleTextItem::removeSelection(int index)
{
    TextItem* const item = Text();
    if (item && index == 0)
        item->ClearSelection();
}

void AccessibleTextItem::setSelection(int index, int start, int end)
{
    TextItem* const item = Text();
    if (item && index == 0)
        item->Select(start, end);
}

int AccessibleTextItem::cursorPosition() const
{
    const TextItem* const item = Text();
    return item ? item->CursorPosition() : 0;
}

} // namespace kestro
