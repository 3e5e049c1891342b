#include "ui/image/PlixDecodedPictures.h"

#include <QCache>
#include <QObject>

namespace {

// Also the receiver of the call that empties it.
class Cache : public QObject, public QCache<const PlixPicture*, QImage> {
public:
    Cache()
        : QCache(PlixDecodedPictures::kMaximumBytes)
    {
    }
};

Cache& Instance()
{
    // Never destroyed: the host may delete its scene after static objects.
    static auto* const instance = new Cache;
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
    Cache& cache = Instance();
    if (cache.isEmpty())
        QMetaObject::invokeMethod(
            &cache, [&cache] { cache.clear(); }, Qt::QueuedConnection);
    cache.insert(&picture, new QImage(decoded), static_cast<int>(decoded.sizeInBytes()));
}

void PlixDecodedPictures::Remove(const PlixPicture& picture)
{
    Instance().remove(&picture);
}
