#include "ui/image/PlixPictureFile.h"

#include "ui/image/PlixJpegPixels.h"
#include "ui/image/PlixPictureHeader.h"
#include "ui/image/PlixPngPixels.h"

#include <QFile>
#include <QFileInfo>

namespace plix {

namespace {

QByteArray ReadFile(const QString& path)
{
    // Devices and pipes would block, or never end.
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > kMaximumPictureFileBytes)
        return {};
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(info.size()) : QByteArray();
}

// What of the file is given to the decoder: nothing of one that it would be
// busy with for too long.
QByteArray PixelsOnly(const QByteArray& bytes, const QByteArray& format)
{
    if (format == "png")
        return PngPixelsOnly(bytes);
    if (format != "jpeg")
        return bytes;
    const PlixJpegPixels pixels = ReadJpegPixels(bytes);
    return pixels.scans <= kMaximumJpegScans ? pixels.bytes : QByteArray();
}

} // namespace

std::optional<PlixPictureFile> ReadPictureFile(const QString& path)
{
    PlixPictureFile file;
    const QByteArray bytes = ReadFile(path);
    file.format = PictureFormat(bytes);
    if (file.format.isEmpty())
        return std::nullopt;
    file.bytes = PixelsOnly(bytes, file.format);
    file.size = PictureSize(file.bytes, file.format);
    const qint64 pixels = qint64 {file.size.width()} * file.size.height();
    if (file.size.isEmpty() || pixels > kMaximumPicturePixels)
        return std::nullopt;
    return file;
}

} // namespace plix
