#include "ui/PlixPaths.h"

#include <QPainter>

#include <algorithm>

namespace plix {

double FittingRadius(const QRectF& rect, double radius)
{
    const int half = static_cast<int>(rect.height()) / 2;
    return std::min<double>(radius, half);
}

QPainterPath RoundedPath(const QRectF& rect, double radius)
{
    const double fitting = FittingRadius(rect, radius);
    QPainterPath path;
    path.addRoundedRect(rect, fitting, fitting, Qt::AbsoluteSize);
    return path;
}

QPainterPath RectanglePath(const QRectF& rect)
{
    QPainterPath path;
    path.addRect(rect);
    // With one more element, Qt does not recognize the rectangle. The element encloses
    // nothing, so contains() is right, too.
    path.moveTo(rect.topLeft());
    return path;
}

void ClipToRectangle(QPainter& painter, const QRectF& rect)
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setClipPath(RectanglePath(rect), Qt::IntersectClip);
}

} // namespace plix
