#pragma once

#include "ui/PlixBaseUI.h"

#include <QAccessible>

// Makes an accessible interface of a card's item one that can be pressed, if the item has
// an action of its own.
template <typename Interface> class PlixPressable : public Interface {
public:
    using Interface::Interface;

protected:
    // Null while the item is being deleted.
    PlixBaseUI* Ui() const { return dynamic_cast<PlixBaseUI*>(this->object()); }

    bool CanPress() const override
    {
        const PlixBaseUI* const ui = Ui();
        return ui && ui->HasOwnAction();
    }

    void Press() override { Ui()->DeliverClick(); }
};
