#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>

class QGraphicsItem;

namespace plix::test {

// A card as a host's view shows it, on white, a pixel for a logical pixel.
class Picture {
public:
    explicit Picture(QGraphicsItem& root);

    QColor at(const QPointF& point) const;

    // Within `area`, the smallest rectangle around what does not have the
    // colour of the point `ground`; empty when there is nothing.
    QRectF inkIn(const QRectF& area, const QPointF& ground) const;

private:
    QImage image_;
};

} // namespace plix::test
