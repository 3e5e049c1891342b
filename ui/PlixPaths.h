#pragma once

#include <QPainterPath>
#include <QRectF>

class QPainter;

namespace plix {

// The radius of the corners of a rectangle: at most half of its height.
double FittingRadius(const QRectF& rect, double radius);

// A rounded rectangle. The radius is at most half of its height.
QPainterPath RoundedPath(const QRectF& rect, double radius);

// A rectangle for a painter to clip to. Qt clips to it as to any other path: to the
// pixels whose center is inside. Qt would round a plain rectangle outwards to whole
// pixels, but not if the clip around it is not rectangular. So a partial paint would
// show other pixels than a paint of the whole.
QPainterPath RectanglePath(const QRectF& rect);

// Clips to that rectangle, with hard edges. Turns antialiasing off.
void ClipToRectangle(QPainter& painter, const QRectF& rect);

} // namespace plix
