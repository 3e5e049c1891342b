#pragma once

#include "ui/image/PlixPictureUI.h"

// The "icon" component: a small picture, as high as its "size" says. It is never
// clickable itself.
class PlixIconUI : public PlixPictureUI {
    Q_OBJECT

public:
    explicit PlixIconUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);

    bool Init() override;
};
