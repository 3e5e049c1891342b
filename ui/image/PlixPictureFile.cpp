#include "ui/image/PlixPictureFile.h"

#include "layout/PlixLimits.h"
#include "ui/image/PlixJpegMetadata.h"
#include "ui/image/PlixPictureHeader.h"
#include "ui/image/PlixPngMetadata.h"

#include <QFile>
#include <QFileInfo>

namespace plix {

namespace {

QByteArray ReadFile(const QString& path)
{
    // Reading a device or pipe could block, or never end.
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > kMaximumPictureFileBytes)
        return {};
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(info.size()) : QByteArray();
}

// The bytes for the decoder; none if they would keep it busy for too long.
QByteArray StripMetadata(const QByteArray& bytes, const QByteArray& format)
{
    if (format == "png")
        return StripPngMetadata(bytes);
    if (format != "jpeg")
        return bytes;
    const PlixStrippedJpeg jpeg = StripJpegMetadata(bytes);
    return jpeg.scans <= kMaximumJpegScans ? jpeg.bytes : QByteArray();
}

} // namespace

std::optional<PlixPictureFile> ReadPictureFile(const QString& path)
{
    PlixPictureFile file;
    const QByteArray bytes = ReadFile(path);
    file.format = PictureFormat(bytes);
    if (file.format.isEmpty())
        return std::nullopt;
    file.bytes = StripMetadata(bytes, file.format);
    file.size = PictureSize(file.bytes, file.format);
    const qint64 pixels = qint64 {file.size.width()} * file.size.height();
    if (file.size.isEmpty() || pixels > kMaximumPicturePixels)
        return std::nullopt;
    return file;
}

} // namespace plix
