#include "ui/image/PlixKeptPictures.h"

#include "layout/PlixLimits.h"

#include <QCache>
#include <QHash>

namespace {

QHash<const void*, qint64>& BytesOfCards()
{
    // Never destroyed: the host may delete its scene after static objects.
    static auto* const bytes = new QHash<const void*, qint64>;
    return *bytes;
}

class Kept {
public:
    Kept(const void* card, const QImage& image)
        : card_(card)
        , image_(image)
    {
        BytesOfCards()[card_] += image_.sizeInBytes();
    }
    ~Kept()
    {
        const auto bytes = BytesOfCards().find(card_);
        *bytes -= image_.sizeInBytes();
        if (*bytes == 0)
            BytesOfCards().erase(bytes);
    }

    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

    const QImage& Image() const { return image_; }

private:
    const void* const card_;
    const QImage image_;
};

using KeptCache = QCache<const PlixShownPicture*, Kept>;

KeptCache& KeptPictures()
{
    static auto* const instance = new KeptCache(plix::kMaximumKeptBytes);
    return *instance;
}

} // namespace

QImage PlixKeptPictures::Find(const PlixShownPicture& item)
{
    const Kept* const kept = KeptPictures().object(&item);
    return kept ? kept->Image() : QImage();
}

bool PlixKeptPictures::Insert(const PlixShownPicture& item, const void* card, const QImage& image)
{
    Remove(item);
    if (BytesOfCards().value(card) + image.sizeInBytes() > plix::kMaximumKeptBytesOfCard)
        return false;
    return KeptPictures().insert(&item, new Kept(card, image),
                                 static_cast<int>(image.sizeInBytes()));
}

void PlixKeptPictures::Remove(const PlixShownPicture& item)
{
    KeptPictures().remove(&item);
}

qint64 PlixKeptPictures::UsedBytes()
{
    return KeptPictures().totalCost();
}
