#pragma once

#include <QByteArray>

// What a JPEG file's pixels are decoded from.
struct PlixJpegPixels {
    // The file without comments and the data of applications, of which there may
    // be any number; but for those that say what its colours are.
    QByteArray bytes;
    // The passes over all pixels.
    int scans = 0;
};

namespace plix {

PlixJpegPixels ReadJpegPixels(const QByteArray& bytes);

} // namespace plix
