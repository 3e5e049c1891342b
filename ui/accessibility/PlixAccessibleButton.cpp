#include "ui/accessibility/PlixAccessibleButton.h"

QAccessible::State PlixAccessibleButton::state() const
{
    QAccessible::State state = PlixPressable::state();
    // A button without an action, or with one that is not available here.
    state.disabled = state.disabled || !CanPress();
    return state;
}

QString PlixAccessibleButton::Name() const
{
    PlixBaseUI* const ui = Ui();
    if (!ui)
        return {};
    const QString text = ui->PlainText();
    return text.trimmed().isEmpty() ? ui->ActionName() : text;
}
