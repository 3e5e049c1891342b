#include "ui/accessibility/PlixAccessibleCard.h"

#include "ui/PlixBubbleUI.h"
#include "ui/PlixChildItems.h"

QString PlixAccessibleCard::Name() const
{
    const auto* const card = qobject_cast<const PlixBubbleUI*>(object());
    return card ? plix::FirstText(*card) : QString();
}
