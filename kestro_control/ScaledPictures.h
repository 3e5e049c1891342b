#pragma once

#include <QCache>
#include <QImage>
#include <QSize>

#include <utility>

namespace kestro {

// Pictures in the sizes that they are shown in: what is painted again is not
// scaled again. Those that were not painted for longest go first.
class ScaledPictures {
public:
    explicit ScaledPictures(int maxBytes);

    // The picture in its own proportions, as large as fits into `size`.
    QImage Get(const QImage& picture, const QSize& size);

    int Bytes() const { return pictures_.totalCost(); }

private:
    // The picture's key, and the size as one number.
    using Key = std::pair<qint64, qint64>;

    QCache<Key, QImage> pictures_;
};

} // namespace kestro
