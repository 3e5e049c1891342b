#include "PictureLimits.h"

#include <algorithm>

namespace plix::tool {

QSize withinPictureLimits(const QSizeF& size)
{
    const int width = static_cast<int>(std::min<double>(size.width(), kMaximumPictureSide));
    const int maximumHeight =
        std::min(kMaximumPictureSide, kMaximumPicturePixels / std::max(width, 1));
    return {width, static_cast<int>(std::min<double>(size.height(), maximumHeight))};
}

} // namespace plix::tool
