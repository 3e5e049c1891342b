#include "ui/image/PlixPicturePainter.h"

#include "layout/PlixLimits.h"
#include "ui/PlixPaths.h"

#include <QBrush>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// How a picture lies on the painter's device.
struct Mapping {
    QRectF area; // in logical pixels
    bool isExact; // one device pixel for each pixel of the picture
};

Mapping MapToDevice(const QPainter& painter, const QImage& image, const QRectF& area)
{
    const QTransform& toDevice = painter.deviceTransform();
    const bool isUpright =
        toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0 && toDevice.m22() > 0;
    const QRectF onDevice = toDevice.mapRect(area);
    const bool isExact = isUpright && std::abs(onDevice.width() - image.width()) < 0.5
        && std::abs(onDevice.height() - image.height()) < 0.5;
    if (!isExact)
        return {area, false};
    const QPointF corner(std::round(onDevice.x()), std::round(onDevice.y()));
    return {toDevice.inverted().mapRect(QRectF(corner, QSizeF(image.size()))), true};
}

} // namespace

PlixPictureTarget::PlixPictureTarget(const QRectF& area, double dpiFactor)
    : area_(area)
{
    // Cards can be of any size. Above the maximum, the picture is scaled to fewer
    // pixels, and the painter scales these up.
    const double width = area.width() * dpiFactor;
    const double height = area.height() * dpiFactor;
    const double excess = std::sqrt(width * height / plix::kMaximumScaledPixels);
    const double widest = plix::kMaximumScaledPixels;
    const double factor = std::isfinite(excess) ? std::max(excess, 1.0) : 0;
    size_ = factor > 0 ? QSize(static_cast<int>(std::min(width / factor, widest)),
                               static_cast<int>(std::min(height / factor, widest)))
                       : QSize();
    if (factor == 1)
        area_.setSize(QSizeF(size_) / dpiFactor);
}

void plix::DrawPicture(QPainter& painter, const QImage& image, const QRectF& area)
{
    const Mapping mapping = MapToDevice(painter, image, area);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !mapping.isExact);
    painter.drawImage(mapping.area, image);
}

void plix::DrawPicture(QPainter& painter, const QImage& image, const QRectF& area,
                       const QPainterPath& outline)
{
    const Mapping mapping = MapToDevice(painter, image, area);
    QTransform onPicture = QTransform::fromTranslate(mapping.area.x(), mapping.area.y());
    onPicture.scale(mapping.area.width() / image.width(), mapping.area.height() / image.height());
    QBrush brush(image);
    brush.setTransform(onPicture);
    // A brush repeats its picture outside of it, so the painter clips. The clip has
    // hard edges: Qt loses soft ones where the painted part sees a rectangle of it.
    if (!mapping.isExact || !mapping.area.contains(outline.boundingRect()))
        plix::ClipToRectangle(painter, mapping.area);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !mapping.isExact);
    painter.fillPath(outline, brush);
}
