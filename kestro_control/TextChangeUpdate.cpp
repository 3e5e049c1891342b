#include "TextChangeUpdate.h"

#include "kestro_control/AccessibilityUpdates.h"
#include "kestro_control/TextItem.h"

namespace kestro {

TextChangeUpdate::TextChangeUpdate(TextItem& item)
    : item_(HasAccessibilityClient() && item.scene() ? &item : nullptr)
    , before_(item_ ? item_->toPlainText() : QString())
{
}

TextChangeUpdate::~TextChangeUpdate()
{
    if (!item_)
        return;
    const QString now = item_->toPlainText();
    if (now == before_)
        return;
    QAccessibleTextUpdateEvent event(item_, 0, before_, now);
    QAccessible::updateAccessibility(&event);
    TellAccessibilityClients(*item_, QAccessible::NameChanged);
}

} // namespace kestro
