#include "ClipPath.h"

#include <QPainter>
#include <QTransform>

#include <cmath>

namespace kestro {

void AddClipRectangle(QPainterPath& path, const QRectF& rect)
{
    path.addRect(rect);
    // Qt does not recognise a path with this additional element as a rectangle.
    // The element encloses nothing.
    path.moveTo(rect.topLeft());
}

bool HasSidesBetweenPixels(const QPainter& painter, const QRectF& rect)
{
    const QTransform& toDevice = painter.deviceTransform();
    if (toDevice.type() > QTransform::TxScale)
        return false;
    const QRectF onDevice = toDevice.mapRect(rect);
    return onDevice.left() == std::round(onDevice.left())
        && onDevice.right() == std::round(onDevice.right());
}

} // namespace kestro
