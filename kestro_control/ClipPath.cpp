#include "ClipPath.h"

void addClipRectangle(QPainterPath& path, const QRectF& rect)
{
    // One corner more than what Qt takes for a rectangle.
    path.moveTo(rect.topLeft());
    path.lineTo(rect.center().x(), rect.top());
    path.lineTo(rect.topRight());
    path.lineTo(rect.bottomRight());
    path.lineTo(rect.bottomLeft());
    path.closeSubpath();
}
