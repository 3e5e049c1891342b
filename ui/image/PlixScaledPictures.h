#pragma once

#include <QImage>

class PlixPicture;

// The process's cache of scaled pictures, so that a repaint does not scale again. It
// holds a limited number of bytes. The picture that was not painted for the longest
// time is removed first, in all its sizes.
class PlixScaledPictures {
public:
    // Null if it is not cached.
    static QImage Find(const PlixPicture& picture, const QSize& size);
    static void Insert(const PlixPicture& picture, const QImage& image);
    static void Remove(const PlixPicture& picture);
};
