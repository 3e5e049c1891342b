#include "ui/image/PlixGifSize.h"

#include "ui/image/PlixByteReader.h"
#include "ui/image/PlixGifPixelCount.h"

namespace plix {

namespace {

// The length of a table of colours, by the byte that announces it.
int ColorTableBytes(int flags)
{
    constexpr int kHasTable = 0x80;
    return (flags & kHasTable) != 0 ? 3 << ((flags & 7) + 1) : 0;
}

void SkipExtension(PlixByteReader& reader)
{
    constexpr int kGraphicControl = 0xF9;
    constexpr int kApplication = 0xFF;
    const int label = reader.TakeByte();
    // Qt's decoder reads a first block of these whatever its length, even none.
    // Read otherwise, another frame than the decoder's would be the first.
    if (label == kGraphicControl || label == kApplication)
        reader.Skip(reader.TakeByte());
    while (const int length = reader.TakeByte())
        reader.Skip(length);
}

// Reads a frame's data. False when they cannot be decoded, or not in time.
bool SkipFrameData(PlixByteReader& reader, qint64 maximumPixels)
{
    const int bits = reader.TakeByte();
    if (bits > PlixGifPixelCount::kMaximumBits)
        return false;
    PlixGifPixelCount pixels(bits);
    while (const int length = reader.TakeByte()) {
        const QByteArray block = reader.TakeBytes(length);
        pixels.Take(block.constData(), block.size());
        if (pixels.Count() > maximumPixels)
            return false;
    }
    return true;
}

} // namespace

QSize ReadGifSize(const QByteArray& bytes)
{
    constexpr int kExtension = 0x21;
    constexpr int kFrame = 0x2C;
    PlixByteReader reader(bytes);
    reader.Skip(6);
    QSize size;
    size.setWidth(reader.TakeLittleEndian16());
    size.setHeight(reader.TakeLittleEndian16());
    const int flags = reader.TakeByte();
    reader.Skip(2 + ColorTableBytes(flags));
    bool hasFrame = false;
    while (!reader.AtEnd()) {
        const int block = reader.TakeByte();
        if (block == kExtension) {
            SkipExtension(reader);
            continue;
        }
        if (block != kFrame)
            break;
        const int left = reader.TakeLittleEndian16();
        const int top = reader.TakeLittleEndian16();
        const int right = left + reader.TakeLittleEndian16();
        const int bottom = top + reader.TakeLittleEndian16();
        reader.Skip(ColorTableBytes(reader.TakeByte()));
        // Qt takes the screen or the first frame for the picture's size, and
        // cuts later frames to it.
        if (!hasFrame)
            size = size.expandedTo({right, bottom});
        hasFrame = true;
        // Some encoders write a little more than they should.
        if (!SkipFrameData(reader, qint64 {2} * size.width() * size.height()))
            return {};
    }
    return hasFrame ? size : QSize();
}

} // namespace plix
