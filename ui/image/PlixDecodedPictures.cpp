#include "ui/image/PlixDecodedPictures.h"

#include <QCache>
#include <QCoreApplication>
#include <QEvent>
#include <QObject>

namespace {

class Cache : public QObject, public QCache<const PlixPicture*, QImage> {
public:
    Cache()
        : QCache(PlixDecodedPictures::kMaximumBytes)
    {
    }

    void ClearLater() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

private:
    void customEvent(QEvent*) override { clear(); }
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
        cache.ClearLater();
    cache.insert(&picture, new QImage(decoded), static_cast<int>(decoded.sizeInBytes()));
}

void PlixDecodedPictures::Remove(const PlixPicture& picture)
{
    Instance().remove(&picture);
}
