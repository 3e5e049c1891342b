#pragma once

#include <QGraphicsObject>
#include <QRectF>

class QGraphicsWidget;

// The frame around the item that has the keyboard focus. It is a child of that item,
// in front of the other children, which would cover a frame that the item itself
// draws. Does not take part in mouse events, nor in searches for items at a place.
class PlixFocusRing : public QGraphicsObject {
    Q_OBJECT

public:
    // The ring follows the geometry of `item`, which owns it. `cornerRadius` is in
    // pixels.
    static void Show(QGraphicsWidget& item, double cornerRadius);
    static void Hide(const QGraphicsWidget& item);

    QRectF boundingRect() const override { return rect_; }
    QPainterPath shape() const override;
    // Where a parent clips, Qt calls this instead of shape().
    bool contains(const QPointF&) const override { return false; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    PlixFocusRing(QGraphicsWidget& item, double cornerRadius);

    QRectF rect_;
    double cornerRadius_;
};
