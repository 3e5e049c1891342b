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

// What counts as unreadable beyond these: a card may name any picture, and few
// bytes can ask for gigabytes or minutes.
constexpr qint64 kMaximumPictureFileBytes = qint64 {32} * 1024 * 1024;
constexpr qint64 kMaximumPicturePixels = qint64 {4096} * 4096;
// A JPEG file can have any number of passes over its pixels, each of a few bytes.
constexpr int kMaximumJpegScans = 64;

// The whole file, which is looked at but not decoded. Nothing when it is missing,
// is no regular file, may not be read, is of no known format or exceeds the
// limits above. Does not wait for anything but the disk.
std::optional<PlixPictureFile> ReadPictureFile(const QString& path);

} // namespace plix
