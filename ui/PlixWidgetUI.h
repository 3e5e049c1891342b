#pragma once

#include "layout/YogaLayoutItem.h"
#include "ui/PlixBaseUI.h"

#include <QGraphicsWidget>

// The three faces that every drawn item but the text has in one object: a Qt
// widget, a layout node that places it, and an item of a card.
class PlixWidgetUI : public QGraphicsWidget, public YogaLayoutItem, public PlixBaseUI {
    Q_OBJECT

public:
    QGraphicsItem* GetGraphicsItem() override { return this; }
    QGraphicsLayoutItem* GetLayoutItem() override { return this; }
    YogaLayoutItem* GetYogaItem() override { return this; }

protected:
    // `parent` owns the item; without one it is its creator's.
    PlixWidgetUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout);

    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
};
