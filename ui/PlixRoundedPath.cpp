#include "ui/PlixRoundedPath.h"

#include <algorithm>

QPainterPath RoundedPath(const QRectF& rect, int radius)
{
    const int half = static_cast<int>(rect.height()) / 2;
    const int fitting = std::min(radius, half);
    QPainterPath path;
    path.addRoundedRect(rect, fitting, fitting, Qt::AbsoluteSize);
    return path;
}
