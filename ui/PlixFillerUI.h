#pragma once

#include "ui/PlixWidgetUI.h"

// Empty space that takes what is left over in its box.
class PlixFillerUI : public PlixWidgetUI {
    Q_OBJECT

public:
    explicit PlixFillerUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);

    bool Init() override;
};
