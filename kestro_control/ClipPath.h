#pragma once

#include <QPainterPath>
#include <QRectF>

namespace kestro {

// Adds a rectangle to a path to clip to. Qt clips to it as to any other path:
// to the pixels whose middle is inside. A plain rectangle it rounds outwards to
// whole pixels, but only where nothing else is clipped to that is no rectangle:
// so a paint of a part would show other pixels than a paint of the whole.
void AddClipRectangle(QPainterPath& path, const QRectF& rect);

} // namespace kestro
