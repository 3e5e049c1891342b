#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

#include <optional>

// A picture that can be decoded at a bounded cost.
struct PlixPictureFile {
    QByteArray bytes;
    QByteArray format; // as QImageReader names it
    QSize size; // in pixels
};

namespace plix {

// Reads the whole file and checks it, but does not decode it. Nothing if the file is
// missing, is not a regular file, cannot be read, is of an unknown format or exceeds the
// limits of PlixLimits.h. Waits for nothing but the disk.
std::optional<PlixPictureFile> ReadPictureFile(const QString& path);

} // namespace plix
