#include "ui/PlixDevicePixels.h"

#include <QPainter>
#include <QRectF>
#include <QTransform>

#include <cmath>

namespace plix {

namespace {

bool IsWhole(double length)
{
    return length == std::round(length);
}

} // namespace

bool IsOnWholePixels(const QPainter& painter, const QRectF& rect)
{
    const QTransform& toDevice = painter.deviceTransform();
    if (toDevice.type() > QTransform::TxScale)
        return false;
    const QRectF onDevice = toDevice.mapRect(rect);
    return IsWhole(onDevice.left()) && IsWhole(onDevice.top()) && IsWhole(onDevice.right())
        && IsWhole(onDevice.bottom());
}

} // namespace plix
