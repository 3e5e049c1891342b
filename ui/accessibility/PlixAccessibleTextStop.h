#pragma once

#include "ui/PlixFocusStop.h"
#include "ui/accessibility/PlixAccessibleLeftOut.h"

#include <kestro_control/TextItem.h>

// The stop of the Tab key on a text: clients see the text instead.
class PlixAccessibleTextStop : public PlixAccessibleLeftOut {
public:
    using PlixAccessibleLeftOut::PlixAccessibleLeftOut;

    QGraphicsItem* ParentItem() const override
    {
        const auto* const stop = qobject_cast<const PlixFocusStop*>(object());
        return stop ? &stop->Text() : nullptr;
    }
};
