#include "SelectionUpdate.h"

#include "ItemSelection.h"
#include "TextCharacters.h"

#include "kestro_control/AccessibilityUpdates.h"

#include <QAccessible>
#include <QGraphicsObject>

namespace kestro {

namespace {

// How Qt's own texts tell that nothing is selected.
constexpr CharacterRange kNothing {-1, -1};

} // namespace

void TellOfSelection(const ItemSelection& selection, QGraphicsObject& item)
{
    if (!HasAccessibilityClient() || !item.scene())
        return;
    const CharacterRange range = selection.IsEmpty() ? kNothing : selection.Characters();
    QAccessibleTextSelectionEvent event(&item, range.start, range.end);
    event.setCursorPosition(selection.CursorPosition());
    QAccessible::updateAccessibility(&event);
}

} // namespace kestro
