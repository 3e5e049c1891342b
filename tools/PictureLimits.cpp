#include "PictureLimits.h"

#include <algorithm>

namespace plix::tool {

QSize withinPictureLimits(const QSizeF& size)
{
    const int width = static_cast<int>(std::min<double>(size.width(), maximumPictureSide));
    const int highest = std::min(maximumPictureSide, maximumPicturePixels / std::max(width, 1));
    return {width, static_cast<int>(std::min<double>(size.height(), highest))};
}

} // namespace plix::tool
