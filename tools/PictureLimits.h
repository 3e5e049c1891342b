#pragma once

#include <QSize>
#include <QSizeF>

namespace plix::tool {

// Cards can be of any size, pictures cannot: they would not fit into memory,
// and no program would open them.
constexpr int maximumPictureSide = 32767;
constexpr int maximumPicturePixels = 64'000'000;

// `size` in pixels, cut where it exceeds what a picture may have.
QSize withinPictureLimits(const QSizeF& size);

} // namespace plix::tool
