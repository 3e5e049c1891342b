#include "ClipPath.h"

namespace kestro {

void AddClipRectangle(QPainterPath& path, const QRectF& rect)
{
    path.addRect(rect);
    // Qt does not recognise a path with this additional element as a rectangle.
    // The element encloses nothing.
    path.moveTo(rect.topLeft());
}

} // namespace kestro
