#pragma once

#include <QImage>

class PlixPicture;

// Still pictures that were decoded just now. A card may show a file in many sizes:
// while it is painted, the file is decoded once for all of them. The pictures are
// deleted when control returns to Qt, or after the next paint if some have to wait for
// that (PlixPictureWork). Until then, they take a limited number of bytes; the picture
// that was not used for the longest time is deleted first.
class PlixDecodedPictures {
public:
    // Null if it was not decoded just now.
    static QImage Find(const PlixPicture& picture);
    static void Insert(const PlixPicture& picture, const QImage& decoded);
    static void Remove(const PlixPicture& picture);
    static void Clear();
};
