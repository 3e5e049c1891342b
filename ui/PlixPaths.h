#pragma once

#include <QPainterPath>
#include <QRectF>

namespace plix {

// A rounded rectangle whose corners take up its whole height at most.
QPainterPath RoundedPath(const QRectF& rect, double radius);

// A rectangle for a painter to clip to. Qt clips to it as to any other path: to
// the pixels whose middle is inside. A plain rectangle it rounds outwards to whole
// pixels, but only where nothing else is clipped to that is no rectangle: so a
// paint of a part would show other pixels than a paint of the whole.
QPainterPath RectanglePath(const QRectF& rect);

} // namespace plix
