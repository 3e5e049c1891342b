#include "ui/image/PlixPictureHeader.h"

#include "ui/image/PlixGifSize.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace plix {

namespace {

bool IsWebP(const QByteArray& bytes)
{
    return bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP";
}

QByteArray FormatByFirstBytes(const QByteArray& bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return "png";
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return "jpeg";
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a"))
        return "gif";
    if (bytes.startsWith("BM"))
        return "bmp";
    return IsWebP(bytes) ? QByteArray("webp") : QByteArray();
}

} // namespace

QByteArray PictureFormat(const QByteArray& bytes)
{
    const QByteArray format = FormatByFirstBytes(bytes);
    // If the plugin is missing, Qt would try the others.
    return QImageReader::supportedImageFormats().contains(format) ? format : QByteArray();
}

QSize PictureSize(const QByteArray& bytes, const QByteArray& format)
{
    if (format == "gif")
        return ReadGifSize(bytes);
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    const QSize size = QImageReader(&buffer, format).size();
    // BMP files that begin with the top row have a negative height.
    const qint64 height = std::abs(qint64 {size.height()});
    return {size.width(), static_cast<int>(std::min<qint64>(height, INT_MAX))};
}

} // namespace plix
