#include "ui/image/PictureBytes.h"

#include <QBuffer>
#include <QtEndian>

namespace plix::test {
namespace {

template <typename Integer> QByteArray inBigEndian(Integer value)
{
    QByteArray bytes(sizeof value, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

template <typename Integer> QByteArray inLittleEndian(Integer value)
{
    QByteArray bytes(sizeof value, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

quint32 crc32(const QByteArray& bytes)
{
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
    }
    return ~crc;
}

QByteArray gifFrames(const QSize& size, const std::vector<int>& colors, int delay, int loops)
{
    QByteArray bytes = gifHead(size) + gifLoops(loops);
    for (const int color : colors)
        bytes += gifDelay(delay) + gifFrame(size, color);
    return bytes + ';';
}

} // namespace

QByteArray littleEndian16(int value)
{
    return inLittleEndian(static_cast<quint16>(value));
}

QByteArray bigEndian16(int value)
{
    return inBigEndian(static_cast<quint16>(value));
}

QByteArray bigEndian32(quint32 value)
{
    return inBigEndian(value);
}

QByteArray pictureBytes(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 100);
    return bytes;
}

QByteArray gifHead(const QSize& screen)
{
    const QByteArray colors =
        QByteArray::fromHex("000000ff000000ff000000ffffffff000000000000000000");
    return "GIF89a" + littleEndian16(screen.width()) + littleEndian16(screen.height())
        + QByteArray::fromHex("820000") + colors;
}

QByteArray gifFrame(const QSize& size, int color)
{
    // The codes have four bits, because the table is cleared before it grows.
    constexpr int kClear = 8;
    constexpr int kEnd = 9;
    std::vector<int> codes;
    for (int pixel = 0; pixel < size.width() * size.height(); ++pixel) {
        if (pixel % 4 == 0)
            codes.push_back(kClear);
        codes.push_back(color);
    }
    codes.push_back(kEnd);
    if (codes.size() % 2 != 0)
        codes.push_back(0);
    QByteArray data;
    for (std::size_t i = 0; i < codes.size(); i += 2)
        data += static_cast<char>(codes[i] | codes[i + 1] << 4);
    QByteArray frame = "," + littleEndian16(0) + littleEndian16(0) + littleEndian16(size.width())
        + littleEndian16(size.height()) + '\0' + '\3';
    for (int at = 0; at < data.size(); at += 255) {
        const QByteArray block = data.mid(at, 255);
        frame += static_cast<char>(block.size()) + block;
    }
    return frame + '\0';
}

QByteArray gifDelay(int hundredths)
{
    return QByteArray::fromHex("21f90400") + littleEndian16(hundredths) + QByteArray(2, '\0');
}

QByteArray gifLoops(int count)
{
    return QByteArray::fromHex("21ff0b") + "NETSCAPE2.0" + QByteArray::fromHex("0301")
        + littleEndian16(count) + '\0';
}

QByteArray gifAnimation(const QSize& size, const std::vector<int>& colors, int loops)
{
    return gifFrames(size, colors, kLongGifDelay, loops);
}

QByteArray fastGifAnimation(const QSize& size, const std::vector<int>& colors)
{
    return gifFrames(size, colors, 1, 0);
}

QByteArray pngSignature()
{
    return QByteArray::fromHex("89504e470d0a1a0a");
}

QByteArray pngChunk(const QByteArray& type, const QByteArray& data)
{
    return bigEndian32(static_cast<quint32>(data.size())) + type + data
        + bigEndian32(crc32(type + data));
}

QByteArray pngHeader(const QSize& size, int bitDepth, int colorType)
{
    return pngSignature()
        + pngChunk("IHDR",
                   bigEndian32(static_cast<quint32>(size.width()))
                       + bigEndian32(static_cast<quint32>(size.height()))
                       + static_cast<char>(bitDepth) + static_cast<char>(colorType)
                       + QByteArray(3, '\0'));
}

QByteArray zlibZeros(int count)
{
    constexpr int kLengthOfQt = 4;
    return qCompress(QByteArray(count, '\0'), 9).mid(kLengthOfQt);
}

QByteArray blackPng(const QSize& size, const QByteArray& more)
{
    constexpr int kGrey = 0;
    const int lineBytes = 1 + (size.width() + 7) / 8;
    return pngHeader(size, 1, kGrey) + more + pngChunk("IDAT", zlibZeros(lineBytes * size.height()))
        + pngChunk("IEND", {});
}

QByteArray jpegSegment(int marker, const QByteArray& data)
{
    return '\xFF' + QByteArray(1, static_cast<char>(marker)) + bigEndian16(data.size() + 2) + data;
}

QByteArray jpegOfScans(const QSize& size, int scans)
{
    const QByteArray oneCode = QByteArray::fromHex("0001") + QByteArray(15, '\0') + '\0';
    QByteArray bytes = QByteArray::fromHex("ffd8") + jpegSegment(0xDB, '\0' + QByteArray(64, '\1'))
        + jpegSegment(0xC2,
                      '\x08' + bigEndian16(size.height()) + bigEndian16(size.width())
                          + QByteArray::fromHex("01011100"))
        + jpegSegment(0xC4, oneCode);
    // The first pass, then one bit of each block's first coefficient at a time.
    for (int scan = 0; scan < scans; ++scan) {
        bytes +=
            jpegSegment(0xDA, QByteArray::fromHex(scan == 0 ? "010100000001" : "010100000010"));
        bytes += QByteArray(4, '\0');
    }
    return bytes + QByteArray::fromHex("ffd9");
}

QByteArray bmpHead(qint32 width, qint32 height)
{
    return "BM" + QByteArray(8, '\0') + inLittleEndian(qint32 {54}) + inLittleEndian(qint32 {40})
        + inLittleEndian(width) + inLittleEndian(height) + littleEndian16(1) + littleEndian16(24)
        + QByteArray(24, '\0');
}

} // namespace plix::test
