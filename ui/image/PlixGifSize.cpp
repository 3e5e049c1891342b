#include "ui/image/PlixGifSize.h"

#include "ui/image/PlixByteReader.h"
#include "ui/image/PlixGifPixelCount.h"

namespace plix {

namespace {

// The length of a colour table. `flags` is the byte that announces it.
int ColorTableBytes(int flags)
{
    constexpr int kHasTable = 0x80;
    return (flags & kHasTable) != 0 ? 3 << ((flags & 7) + 1) : 0;
}

void SkipExtension(PlixByteReader& reader)
{
    constexpr int kGraphicControl = 0xF9;
    constexpr int kApplication = 0xFF;
    const int label = reader.ReadByte();
    // Qt's decoder reads the first block of these extensions even if its length is 0.
    // This must read the same, or it would find other frames than the decoder.
    if (label == kGraphicControl || label == kApplication)
        reader.Skip(reader.ReadByte());
    while (const int length = reader.ReadByte())
        reader.Skip(length);
}

// False if the frame cannot be decoded, or has more than `maximumPixels`.
bool SkipFrameData(PlixByteReader& reader, qint64 maximumPixels)
{
    const int bits = reader.ReadByte();
    if (bits > PlixGifPixelCount::kMaximumBits)
        return false;
    PlixGifPixelCount pixels(bits);
    while (const int length = reader.ReadByte()) {
        const QByteArray block = reader.ReadBytes(length);
        pixels.Add(block.constData(), block.size());
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
    size.setWidth(reader.ReadLittleEndian16());
    size.setHeight(reader.ReadLittleEndian16());
    const int flags = reader.ReadByte();
    reader.Skip(2 + ColorTableBytes(flags));
    bool hasFrame = false;
    while (!reader.AtEnd()) {
        const int block = reader.ReadByte();
        if (block == kExtension) {
            SkipExtension(reader);
            continue;
        }
        if (block != kFrame)
            break;
        const int left = reader.ReadLittleEndian16();
        const int top = reader.ReadLittleEndian16();
        const int right = left + reader.ReadLittleEndian16();
        const int bottom = top + reader.ReadLittleEndian16();
        reader.Skip(ColorTableBytes(reader.ReadByte()));
        // To Qt, the picture is as large as the screen and the first frame need.
        // Qt cuts later frames to that size.
        if (!hasFrame)
            size = size.expandedTo({right, bottom});
        hasFrame = true;
        // Twice the pixels: some encoders write a little more than they should.
        if (!SkipFrameData(reader, qint64 {2} * size.width() * size.height()))
            return {};
    }
    return hasFrame ? size : QSize();
}

} // namespace plix
