#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>

class QGraphicsItem;

// What an item paints, on white paper that reaches beyond it on all sides.
class Ink {
public:
    explicit Ink(QGraphicsItem& item, qreal scale = 1);

    // What is not white, in the item's coordinates; empty when nothing is.
    QRectF Rect() const;
    // The part of it inside `area`.
    QRectF RectIn(const QRectF& area) const;

    // Whether any pixel has just this colour.
    bool Has(const QColor& color) const;

    const QImage& Picture() const { return picture_; }

private:
    qreal scale_;
    QPointF origin_;
    QImage picture_;
};
