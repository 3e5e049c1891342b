#pragma once

class QColor;
class QPainter;
class QRectF;

namespace plix {

// Whether all edges of `rect` are edges of pixels of the painter's device. Then a
// painter that fills it, or clips to it, need not decide about parts of pixels.
bool IsOnWholePixels(const QPainter& painter, const QRectF& rect);

// Fills a rectangle that is on whole pixels. Antialiasing would only take time.
void FillWholePixels(QPainter& painter, const QRectF& rect, const QColor& color);

} // namespace plix
