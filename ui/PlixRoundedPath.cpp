#include "ui/PlixRoundedPath.h"

#include <algorithm>

QPainterPath RoundedPath(const QRectF& rect, double radius)
{
    const int half = static_cast<int>(rect.height()) / 2;
    const double fitting = std::min<double>(radius, half);
    QPainterPath path;
    path.addRoundedRect(rect, fitting, fitting, Qt::AbsoluteSize);
    return path;
}

QPainterPath RectanglePath(const QRectF& rect)
{
    // One corner more than what Qt takes for a rectangle.
    QPainterPath path(rect.topLeft());
    path.lineTo(rect.center().x(), rect.top());
    path.lineTo(rect.topRight());
    path.lineTo(rect.bottomRight());
    path.lineTo(rect.bottomLeft());
    path.closeSubpath();
    return path;
}
