#pragma once

#include "ui/PlixWidgetUI.h"

// Empty space of a fixed length.
class PlixSpacerUI : public PlixWidgetUI {
    Q_OBJECT

public:
    explicit PlixSpacerUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);

    bool Init() override;
};
