#include "ui/image/PlixScaledPictures.h"

#include "layout/PlixLimits.h"

#include <QCache>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

using Sizes = std::vector<QImage>;
using ScaledCache = QCache<const PlixPicture*, Sizes>;

ScaledCache& ScaledPictures()
{
    // Never destroyed: the host may delete its scene after static objects.
    static auto* const instance = new ScaledCache(plix::kMaximumCachedBytes);
    return *instance;
}

int BytesOf(const Sizes& sizes)
{
    qint64 bytes = 0;
    for (const QImage& image : sizes)
        bytes += image.sizeInBytes();
    return static_cast<int>(bytes);
}

} // namespace

QImage PlixScaledPictures::Find(const PlixPicture& picture, const QSize& size)
{
    const Sizes* sizes = ScaledPictures().object(&picture);
    if (!sizes)
        return {};
    const auto found = std::find_if(sizes->begin(), sizes->end(),
                                    [&](const QImage& image) { return image.size() == size; });
    return found == sizes->end() ? QImage() : *found;
}

void PlixScaledPictures::Insert(const PlixPicture& picture, const QImage& image)
{
    std::unique_ptr<Sizes> sizes(ScaledPictures().take(&picture));
    if (!sizes)
        sizes = std::make_unique<Sizes>();
    sizes->push_back(image);
    const int bytes = BytesOf(*sizes);
    ScaledPictures().insert(&picture, sizes.release(), bytes);
}

void PlixScaledPictures::Remove(const PlixPicture& picture)
{
    ScaledPictures().remove(&picture);
}
