#include "ui/image/PlixPictureHeader.h"

#include <QBuffer>
#include <QImageReader>

namespace {

// Reads a file's bytes in their order; what lies behind the end is zero.
class ByteReader {
public:
    explicit ByteReader(const QByteArray& bytes)
        : bytes_(bytes)
    {
    }

    bool atEnd() const { return at_ >= bytes_.size(); }
    void skip(qint64 count) { at_ += count; }
    int takeByte()
    {
        const char byte = atEnd() ? '\0' : bytes_[static_cast<int>(at_)];
        skip(1);
        return static_cast<unsigned char>(byte);
    }
    int takeLittleEndian16()
    {
        const int low = takeByte();
        const int high = takeByte();
        return high << 8 | low;
    }

private:
    const QByteArray& bytes_;
    qint64 at_ = 0;
};

// Colours of a GIF's table, by the byte that announces it.
int ColorTableBytes(int flags)
{
    constexpr int kHasTable = 0x80;
    return (flags & kHasTable) != 0 ? 3 << ((flags & 7) + 1) : 0;
}

void SkipGifExtension(ByteReader& reader)
{
    constexpr int kGraphicControl = 0xF9;
    constexpr int kApplication = 0xFF;
    const int label = reader.takeByte();
    // The decoder reads a first block of these whatever its length, even none.
    // Read otherwise, another frame than the decoder's would be the first.
    if (label == kGraphicControl || label == kApplication)
        reader.skip(reader.takeByte());
    while (!reader.atEnd()) {
        const int length = reader.takeByte();
        if (length == 0)
            return;
        reader.skip(length);
    }
}

// The screen and the first frame: Qt takes either for the picture's size, and
// cuts later frames to it.
QSize GifSize(const QByteArray& bytes)
{
    constexpr int kExtension = 0x21;
    constexpr int kFrame = 0x2C;
    ByteReader reader(bytes);
    reader.skip(6);
    QSize size;
    size.setWidth(reader.takeLittleEndian16());
    size.setHeight(reader.takeLittleEndian16());
    const int flags = reader.takeByte();
    reader.skip(2 + ColorTableBytes(flags));
    while (!reader.atEnd()) {
        const int block = reader.takeByte();
        if (block == kExtension) {
            SkipGifExtension(reader);
        } else if (block == kFrame) {
            const int left = reader.takeLittleEndian16();
            const int top = reader.takeLittleEndian16();
            const int right = left + reader.takeLittleEndian16();
            const int bottom = top + reader.takeLittleEndian16();
            return size.expandedTo({right, bottom});
        } else {
            break;
        }
    }
    return {}; // no frame
}

QSize SizeByReader(const QByteArray& bytes, const QByteArray& format)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer, format).size();
}

bool IsWebP(const QByteArray& bytes)
{
    return bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP";
}

QByteArray FormatOf(const QByteArray& bytes)
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

std::optional<PlixPictureHeader> ReadPictureHeader(const QByteArray& bytes)
{
    const QByteArray format = FormatOf(bytes);
    // Where a plugin is missing, Qt would ask the others.
    if (!QImageReader::supportedImageFormats().contains(format))
        return std::nullopt;
    const QSize size = format == "gif" ? GifSize(bytes) : SizeByReader(bytes, format);
    if (size.isEmpty())
        return std::nullopt;
    return PlixPictureHeader {format, size};
}
