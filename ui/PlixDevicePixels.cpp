#include "ui/PlixDevicePixels.h"

#include <QColor>
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

void FillWholePixels(QPainter& painter, const QRectF& rect, const QColor& color)
{
    const bool wasSmooth = painter.testRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(rect, color);
    painter.setRenderHint(QPainter::Antialiasing, wasSmooth);
}

} // namespace plix
