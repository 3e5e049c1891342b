#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>

class QGraphicsItem;

// A picture of what an item paints on a white background. It has a margin around
// the item's bounding rectangle.
class Ink {
public:
    explicit Ink(QGraphicsItem& item, qreal scale = 1);

    // The bounding rectangle of all pixels that are not white, in the item's
    // coordinates; empty if there are none.
    QRectF rect() const;
    // The same for the pixels inside `area`.
    QRectF rectIn(const QRectF& area) const;

    // Whether any pixel has exactly this colour.
    bool has(const QColor& color) const;

    const QImage& picture() const { return picture_; }

private:
    qreal scale_;
    QPointF origin_;
    QImage picture_;
};
