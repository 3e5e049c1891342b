#pragma once

#include "ui/PlixWidgetUI.h"

// Empty space that grows into the free space of its box.
class PlixFillerUI : public PlixWidgetUI {
    Q_OBJECT

public:
    explicit PlixFillerUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);

    bool Init() override;
};
