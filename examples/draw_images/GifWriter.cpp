#include "GifWriter.h"

#include <algorithm>
#include <map>
#include <utility>

namespace {

void append16(QByteArray& bytes, int value)
{
    bytes.append(static_cast<char>(value & 0xFF));
    bytes.append(static_cast<char>(value >> 8 & 0xFF));
}

// Packs codes of a growing number of bits, lowest bit first.
class CodeWriter {
public:
    void write(int code, int bits)
    {
        pending_ |= static_cast<quint32>(code) << pendingBits_;
        pendingBits_ += bits;
        while (pendingBits_ >= 8)
            flushByte();
    }

    QByteArray finish()
    {
        if (pendingBits_ > 0)
            flushByte();
        return std::move(bytes_);
    }

private:
    void flushByte()
    {
        bytes_.append(static_cast<char>(pending_ & 0xFF));
        pending_ >>= 8;
        pendingBits_ -= 8;
    }

    QByteArray bytes_;
    quint32 pending_ = 0;
    int pendingBits_ = 0;
};

// The compression of the format: a code represents a run of pixels that has
// occurred before.
QByteArray compress(const QByteArray& indexes, int colorBits)
{
    constexpr int kMaximumBits = 12;
    constexpr int kMaximumCode = (1 << kMaximumBits) - 1;
    const int clear = 1 << colorBits;
    CodeWriter writer;
    std::map<std::pair<int, int>, int> codes;
    int bits = colorBits + 1;
    int next = clear + 2;
    const auto restart = [&] {
        writer.write(clear, bits);
        codes.clear();
        bits = colorBits + 1;
        next = clear + 2;
    };
    // Readers widen their codes now, even if no code follows.
    const auto write = [&](int code) {
        writer.write(code, bits);
        if (next == 1 << bits && bits < kMaximumBits)
            ++bits;
    };

    restart();
    int run = static_cast<unsigned char>(indexes[0]);
    for (int i = 1; i < indexes.size(); ++i) {
        const int pixel = static_cast<unsigned char>(indexes[i]);
        const std::pair<int, int> longer(run, pixel);
        if (const auto known = codes.find(longer); known != codes.end()) {
            run = known->second;
            continue;
        }
        write(run);
        run = pixel;
        if (next > kMaximumCode)
            restart();
        else
            codes[longer] = next++;
    }
    write(run);
    writer.write(clear + 1, bits);
    return writer.finish();
}

} // namespace

GifWriter::GifWriter(const QSize& size, const QVector<QRgb>& palette, int repetitions)
    : size_(size)
    , palette_(palette)
    , colorBits_(2)
{
    while (1 << colorBits_ < palette_.size())
        ++colorBits_;
    palette_.resize(1 << colorBits_);
    writeHeader(repetitions);
}

void GifWriter::writeHeader(int repetitions)
{
    constexpr int kHasTable = 0x80;
    bytes_ = "GIF89a";
    append16(bytes_, size_.width());
    append16(bytes_, size_.height());
    bytes_.append(static_cast<char>(kHasTable | (colorBits_ - 1)));
    bytes_.append(2, '\0'); // the background colour, and square pixels
    for (const QRgb color : palette_) {
        bytes_.append(static_cast<char>(qRed(color)));
        bytes_.append(static_cast<char>(qGreen(color)));
        bytes_.append(static_cast<char>(qBlue(color)));
    }
    bytes_.append("\x21\xFF\x0BNETSCAPE2.0\x03\x01", 16);
    append16(bytes_, repetitions);
    bytes_.append('\0');
}

QByteArray GifWriter::indexes(const QImage& frame) const
{
    const QImage indexed = frame.convertToFormat(QImage::Format_ARGB32)
                               .convertToFormat(QImage::Format_Indexed8, palette_);
    QByteArray pixels;
    for (int y = 0; y < size_.height(); ++y)
        pixels.append(reinterpret_cast<const char*>(indexed.constScanLine(y)), size_.width());
    return pixels;
}

void GifWriter::addFrame(const QImage& frame, int milliseconds)
{
    constexpr int kRestoreBackground = 2 << 2;
    constexpr int kHasTransparent = 1;
    constexpr int kMaximumBlockSize = 255;
    bytes_.append("\x21\xF9\x04", 3);
    bytes_.append(static_cast<char>(kRestoreBackground | kHasTransparent));
    append16(bytes_, (milliseconds + 5) / 10);
    bytes_.append(2, '\0'); // the transparent colour, and the end of the block

    bytes_.append(',');
    append16(bytes_, 0);
    append16(bytes_, 0);
    append16(bytes_, size_.width());
    append16(bytes_, size_.height());
    bytes_.append('\0');

    bytes_.append(static_cast<char>(colorBits_));
    const QByteArray packed = compress(indexes(frame), colorBits_);
    for (int at = 0; at < packed.size(); at += kMaximumBlockSize) {
        const QByteArray block = packed.mid(at, kMaximumBlockSize);
        bytes_.append(static_cast<char>(block.size()));
        bytes_.append(block);
    }
    bytes_.append('\0');
}

QByteArray GifWriter::finish()
{
    bytes_.append(';');
    return std::move(bytes_);
}
