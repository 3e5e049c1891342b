#include "ui/image/PlixPictureFile.h"

#include "ui/image/PlixPictureHeader.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

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

// A PNG picture without the chunks that hold texts. They are not shown, and
// compressed ones can swell by the thousand times.
QByteArray WithoutPngTexts(const QByteArray& bytes)
{
    constexpr int kSignature = 8;
    constexpr int kChunkFrame = 12; // length, type and checksum
    QByteArray kept = bytes.left(kSignature);
    qint64 at = kSignature;
    while (at + kChunkFrame <= bytes.size()) {
        const auto length = qFromBigEndian<quint32>(bytes.constData() + at);
        const QByteArray type = bytes.mid(static_cast<int>(at) + 4, 4);
        const qint64 end = std::min<qint64>(at + kChunkFrame + length, bytes.size());
        if (type != "zTXt" && type != "iTXt" && type != "tEXt")
            kept.append(bytes.constData() + at, static_cast<int>(end - at));
        at = end;
    }
    return kept;
}

bool HasTooManyScans(const QByteArray& bytes)
{
    // Within the coded pixels these two bytes never follow each other.
    return bytes.count("\xFF\xDA") > kMaximumJpegScans;
}

} // namespace

std::optional<PlixPictureFile> ReadPictureFile(const QString& path)
{
    QByteArray bytes = ReadFile(path);
    if (bytes.startsWith("\x89PNG"))
        bytes = WithoutPngTexts(bytes);
    const std::optional<PlixPictureHeader> header = ReadPictureHeader(bytes);
    if (!header || (header->format == "jpeg" && HasTooManyScans(bytes)))
        return std::nullopt;
    const qint64 pixels = qint64 {header->size.width()} * header->size.height();
    if (pixels > kMaximumPicturePixels)
        return std::nullopt;
    return PlixPictureFile {bytes, header->format, header->size};
}
