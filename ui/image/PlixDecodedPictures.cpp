#include "ui/image/PlixDecodedPictures.h"

#include "layout/PlixLimits.h"

#include <QCache>

namespace {

using DecodedCache = QCache<const PlixPicture*, QImage>;

DecodedCache& DecodedPictures()
{
    // Never destroyed: the host may delete its scene after static objects.
    static auto* const instance = new DecodedCache(plix::kMaximumDecodedBytes);
    return *instance;
}

} // namespace

QImage PlixDecodedPictures::Find(const PlixPicture& picture)
{
    const QImage* decoded = DecodedPictures().object(&picture);
    return decoded ? *decoded : QImage();
}

void PlixDecodedPictures::Insert(const PlixPicture& picture, const QImage& decoded)
{
    DecodedPictures().insert(&picture, new QImage(decoded),
                             static_cast<int>(decoded.sizeInBytes()));
}

void PlixDecodedPictures::Remove(const PlixPicture& picture)
{
    DecodedPictures().remove(&picture);
}

void PlixDecodedPictures::Clear()
{
    DecodedPictures().clear();
}
