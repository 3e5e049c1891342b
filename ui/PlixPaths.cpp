#include "ui/PlixPaths.h"

#include <algorithm>

namespace plix {

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
    QPainterPath path;
    path.addRect(rect);
    // One element more than what Qt takes for a rectangle. It encloses nothing, so
    // that the path is the rectangle to the mouse, too.
    path.moveTo(rect.topLeft());
    return path;
}

} // namespace plix
