#include "ClipPath.h"

namespace kestro {

void AddClipRectangle(QPainterPath& path, const QRectF& rect)
{
    path.addRect(rect);
    // One element more than what Qt takes for a rectangle. It encloses nothing.
    path.moveTo(rect.topLeft());
}

} // namespace kestro
