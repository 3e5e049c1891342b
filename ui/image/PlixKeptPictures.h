#pragma once

#include <QImage>

class PlixShownPicture;

// The scaled pictures that items keep because the cache of all items did not. A card has
// a limited number of bytes for them. All cards together have a limit, too: the picture
// that was not painted for the longest time is removed first.
class PlixKeptPictures {
public:
    // Null if it is not kept.
    static QImage Find(const PlixShownPicture& item);
    // Keeps the picture of an item of that card, instead of the one before. False if the
    // card has no bytes left for it.
    static bool Insert(const PlixShownPicture& item, const void* card, const QImage& image);
    static void Remove(const PlixShownPicture& item);

    static qint64 UsedBytes();
};
