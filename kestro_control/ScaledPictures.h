#pragma once

#include <QCache>
#include <QImage>
#include <QSize>

#include <utility>

namespace kestro {

// A cache of pictures in the sizes in which they are shown, so that repeated
// painting does not scale them again. The least recently painted ones are removed
// first.
class ScaledPictures {
public:
    explicit ScaledPictures(int maxBytes);

    // The picture, scaled to fit into `size` without changing its proportions.
    QImage Get(const QImage& picture, const QSize& size);

    int Bytes() const { return pictures_.totalCost(); }

private:
    // QImage::cacheKey() and the size as one number.
    using Key = std::pair<qint64, qint64>;

    QCache<Key, QImage> pictures_;
};

} // namespace kestro
