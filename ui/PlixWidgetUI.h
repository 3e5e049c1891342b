#pragma once

#include "layout/YogaLayoutItem.h"
#include "ui/PlixBaseUI.h"

#include <QGraphicsWidget>

// Base of every item of a card except texts: a Qt widget, the layout node that
// places it, and an item of a card, in one object.
class PlixWidgetUI : public QGraphicsWidget, public YogaLayoutItem, public PlixBaseUI {
    Q_OBJECT

public:
    QGraphicsItem* GetGraphicsItem() override { return this; }
    QGraphicsLayoutItem* GetLayoutItem() override { return this; }
    YogaLayoutItem* GetYogaItem() override { return this; }

protected:
    // `parent` owns the item or, if it is null, the caller.
    PlixWidgetUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout);

    // The Tab key stops at an item with an action of its own. A click does not give it
    // the keyboard focus.
    void InitFocus();
    // Of the item's outline, in pixels.
    virtual double CornerRadius() const { return 0; }

    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
