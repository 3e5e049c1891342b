#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>

class QGraphicsItem;

namespace plix::test {

// A card as a host's view shows it on white, at scale 1.
class Picture {
public:
    explicit Picture(QGraphicsItem& root);

    QColor at(const QPointF& point) const;

    // Within `area`, the smallest rectangle around all pixels of another colour than the
    // pixel at `background`; empty when there are none.
    QRectF inkIn(const QRectF& area, const QPointF& background) const;

private:
    QImage image_;
};

} // namespace plix::test
