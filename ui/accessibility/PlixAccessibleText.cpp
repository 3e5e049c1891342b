#include "ui/accessibility/PlixAccessibleText.h"

#include "ui/PlixFocusStop.h"
#include "ui/text/PlixTextUI.h"

QVector<QAccessibleInterface*> PlixAccessibleText::Children() const
{
    QVector<QAccessibleInterface*> children = PlixPressable::Children();
    const auto* const text = qobject_cast<const PlixTextUI*>(object());
    if (!text)
        return children;
    for (const QPointer<PlixFocusStop>& stop : text->FocusStops()) {
        // Hidden: the mention is cut off, or the box around the text is clicked instead.
        if (stop && stop->Mention() && stop->isVisibleTo(stop->parentItem()))
            children += QAccessible::queryAccessibleInterface(stop);
    }
    return children;
}

QAccessible::Role PlixAccessibleText::role() const
{
    return CanPress() ? QAccessible::Link : PlixPressable::role();
}

QGraphicsItem* PlixAccessibleText::FocusItem() const
{
    const auto* const text = qobject_cast<const PlixTextUI*>(object());
    return text && CanPress() ? text->FocusStops().front().data() : PlixPressable::FocusItem();
}
