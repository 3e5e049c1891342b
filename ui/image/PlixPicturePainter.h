#pragma once

#include <QImage>
#include <QPainterPath>
#include <QRectF>

class QPainter;

// Where a picture is drawn, in logical pixels, and what size in device pixels
// it is scaled to for that.
class PlixPictureTarget {
public:
    PlixPictureTarget() = default;
    PlixPictureTarget(const QRectF& area, double dpiFactor);

    // Whole device pixels, less than the area's by a fraction of one.
    QSize size() const { return size_; }
    // What pictures of that size fill.
    QRectF area() const { return area_; }

private:
    QRectF area_;
    QSize size_;
};

namespace plix {

// Fills `area` with the picture. Where that means a device pixel for a picture's
// pixel, they are drawn as they are, on the nearest whole device pixels.
void DrawPicture(QPainter& painter, const QImage& image, const QRectF& area);
// The same, inside an outline.
void DrawPicture(QPainter& painter, const QImage& image, const QRectF& area,
                 const QPainterPath& outline);

} // namespace plix
