#include "ScaledPictures.h"

#include <memory>

namespace kestro {

ScaledPictures::ScaledPictures(int maxBytes)
    : pictures_(maxBytes)
{
}

QImage ScaledPictures::Get(const QImage& picture, const QSize& size)
{
    const Key key(picture.cacheKey(), (qint64 {size.width()} << 32) + size.height());
    if (const QImage* known = pictures_.object(key))
        return *known;
    auto scaled = std::make_unique<QImage>(
        picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    QImage result = *scaled;
    pictures_.insert(key, scaled.release(), static_cast<int>(result.sizeInBytes()));
    return result;
}

} // namespace kestro
