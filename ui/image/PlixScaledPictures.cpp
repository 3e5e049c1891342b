#include "ui/image/PlixScaledPictures.h"

#include <QCache>

namespace {

using Cache = QCache<const PlixPicture*, QImage>;

Cache& Instance()
{
    // Never destroyed: the host's scene may go last of all.
    static auto* const instance = new Cache(PlixScaledPictures::kMaximumBytes);
    return *instance;
}

} // namespace

QImage PlixScaledPictures::Find(const PlixPicture& picture, const QSize& size)
{
    const QImage* image = Instance().object(&picture);
    return image && image->size() == size ? *image : QImage();
}

void PlixScaledPictures::Insert(const PlixPicture& picture, const QImage& image)
{
    Instance().insert(&picture, new QImage(image), static_cast<int>(image.sizeInBytes()));
}

void PlixScaledPictures::Remove(const PlixPicture& picture)
{
    Instance().remove(&picture);
}
