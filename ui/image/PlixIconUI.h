#pragma once

#include "ui/image/PlixPictureUI.h"

// A small picture among texts: as high as its size word says, and never clicked
// itself.
class PlixIconUI : public PlixPictureUI {
    Q_OBJECT

public:
    explicit PlixIconUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);

    bool Init() override;
};
