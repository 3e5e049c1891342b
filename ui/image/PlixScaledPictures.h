#pragma once

#include <QImage>

class PlixPicture;

// The pictures on show, scaled to the sizes in which they are shown: what is
// painted again is not scaled again. A bounded number of bytes for all of the
// process; pictures that were not painted for longest go first, in all sizes.
class PlixScaledPictures {
public:
    static constexpr int kMaximumBytes = 128 * 1024 * 1024;

    // Null when it is not there.
    static QImage Find(const PlixPicture& picture, const QSize& size);
    static void Insert(const PlixPicture& picture, const QImage& image);
    static void Remove(const PlixPicture& picture);
};
