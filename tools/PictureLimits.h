#pragma once

#include <QSize>
#include <QSizeF>

namespace plix::tool {

// A card can have any size. A picture cannot: it would not fit into memory, and
// programs could not open it.
constexpr int kMaximumPictureSide = 32767;
constexpr int kMaximumPicturePixels = 64'000'000;

// `size` in pixels, cut to the maximum size of a picture.
QSize withinPictureLimits(const QSizeF& size);

} // namespace plix::tool
