#pragma once

#include "ui/image/PlixPictureUI.h"

class PlixDataImage;

// The "image" component.
class PlixImageUI : public PlixPictureUI {
    Q_OBJECT

public:
    explicit PlixImageUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);

    bool Init() override;
    void SetClickFunc(const ClickFunc& func) override;

private:
    void InitAction(const PlixDataImage& data);
    void InitSize(PlixDataImage& data);
    void InitAlignment(const PlixDataImage& data);
};
