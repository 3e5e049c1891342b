#include "ui/image/PlixDecodedPictures.h"

#include "layout/PlixLimits.h"

#include <QCache>

namespace {

using Cache = QCache<const PlixPicture*, QImage>;

Cache& Instance()
{
    // Never destroyed: the host may delete its scene after static objects.
    static auto* const instance = new Cache(plix::kMaximumDecodedBytes);
    return *instance;
}

} // namespace

QImage PlixDecodedPictures::Find(const PlixPicture& picture)
{
    const QImage* decoded = Instance().object(&picture);
    return decoded ? *decoded : QImage();
}

void PlixDecodedPictures::Insert(const PlixPicture& picture, const QImage& decoded)
{
    Instance().insert(&picture, new QImage(decoded), static_cast<int>(decoded.sizeInBytes()));
}

void PlixDecodedPictures::Remove(const PlixPicture& picture)
{
    Instance().remove(&picture);
}

void PlixDecodedPictures::Clear()
{
    Instance().clear();
}
