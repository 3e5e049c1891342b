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

// A picture beyond these limits counts as unreadable: a card may name any picture,
// and a few bytes can make the decoder need gigabytes or minutes.
constexpr qint64 kMaximumPictureFileBytes = qint64 {32} * 1024 * 1024;
constexpr qint64 kMaximumPicturePixels = qint64 {4096} * 4096;
// A JPEG file can have any number of passes over its pixels, each of a few bytes.
constexpr int kMaximumJpegScans = 64;

// Reads the whole file and checks it, but does not decode it. Nothing if the file is
// missing, is not a regular file, cannot be read, is of an unknown format or exceeds
// the limits above. Waits for nothing but the disk.
std::optional<PlixPictureFile> ReadPictureFile(const QString& path);

} // namespace plix
