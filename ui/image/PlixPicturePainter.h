#pragma once

#include <QImage>
#include <QPainterPath>
#include <QRectF>

class QPainter;

// Where a picture is drawn, in logical pixels, and the size in device pixels that it
// is scaled to.
class PlixPictureTarget {
public:
    PlixPictureTarget() = default;
    PlixPictureTarget(const QRectF& area, double dpiFactor);

    // In whole device pixels, rounded down.
    QSize Size() const { return size_; }
    // The area that a picture of that size fills.
    QRectF Area() const { return area_; }

private:
    QRectF area_;
    QSize size_;
};

namespace plix {

// Fills `area` with the picture. If that needs one device pixel for each of its
// pixels, they are not scaled, and drawn on the nearest whole device pixels.
void DrawPicture(QPainter& painter, const QImage& image, const QRectF& area);
// The same, inside an outline.
void DrawPicture(QPainter& painter, const QImage& image, const QRectF& area,
                 const QPainterPath& outline);

} // namespace plix
