#pragma once

#include <QByteArray>

// The parts of a JPEG file that its pixels are decoded from.
struct PlixStrippedJpeg {
    QByteArray bytes;
    // The number of passes over all pixels.
    int scans = 0;
};

namespace plix {

// A JPEG file without comments and application data, of which there may be any amount.
// The application data that tell its colour space are kept.
PlixStrippedJpeg StripJpegMetadata(const QByteArray& bytes);

} // namespace plix
