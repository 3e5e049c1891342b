#pragma once

#include <QImage>
#include <QRect>
#include <QVector>

namespace plix::tool {

// Where the words of a text are, which is painted alone on a transparent image in some
// lines of equal height. Words are at least `gap` pixels apart, and wider than that.
QVector<QRect> inkedWords(const QImage& letters, int lines, int gap);

} // namespace plix::tool
