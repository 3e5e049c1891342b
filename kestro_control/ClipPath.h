#pragma once

#include <QPainterPath>
#include <QRectF>

class QPainter;

namespace kestro {

// Adds a rectangle to a clip path, but so that Qt does not recognise it as one.
// Qt then clips to the pixels whose centre is inside, as with any other path. It
// would round a plain rectangle outwards to whole pixels, but only if all other
// clips of the painter are rectangles, too. So painting a part of an item could
// show other pixels than painting all of it.
void AddClipRectangle(QPainterPath& path, const QRectF& rect);

// Whether the left and right edges of `rect` are between two columns of pixels of the
// painter's device. Then a clip to them needs no path.
bool HasSidesBetweenPixels(const QPainter& painter, const QRectF& rect);

} // namespace kestro
