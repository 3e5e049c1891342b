// Qt reads what the writer has written.
#include "draw_images/GifWriter.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageReader>

#include <random>
#include <vector>

namespace plix::test {
namespace {

const QVector<QRgb> kPalette {qRgba(0, 0, 0, 0), qRgb(255, 0, 0), qRgb(0, 255, 0), qRgb(0, 0, 255)};

QImage filled(const QSize& size, QRgb color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

class ReadBack {
public:
    explicit ReadBack(const QByteArray& bytes)
    {
        buffer_.setData(bytes);
        buffer_.open(QIODevice::ReadOnly);
        reader_.setDevice(&buffer_);
        reader_.setFormat("gif");
    }

    QImageReader& reader() { return reader_; }
    QImage next() { return reader_.read().convertToFormat(QImage::Format_ARGB32); }

private:
    QBuffer buffer_;
    QImageReader reader_;
};

TEST(GifWriter, WritesFramesWithTheirTimes)
{
    GifWriter writer({5, 3}, kPalette);
    writer.addFrame(filled({5, 3}, kPalette[1]), 100);
    writer.addFrame(filled({5, 3}, kPalette[3]), 250);
    ReadBack file(writer.finish());
    EXPECT_EQ(file.reader().imageCount(), 2);
    EXPECT_EQ(file.reader().size(), QSize(5, 3));
    EXPECT_EQ(file.next(), filled({5, 3}, kPalette[1]));
    EXPECT_EQ(file.reader().nextImageDelay(), 100);
    EXPECT_EQ(file.next(), filled({5, 3}, kPalette[3]));
    EXPECT_EQ(file.reader().nextImageDelay(), 250);
}

TEST(GifWriter, WritesTheNumberOfRepetitions)
{
    for (const int repetitions : {GifWriter::kEndless, 1, 300}) {
        GifWriter writer({1, 1}, kPalette, repetitions);
        writer.addFrame(filled({1, 1}, kPalette[1]), 100);
        ReadBack file(writer.finish());
        file.next();
        const int counted = file.reader().loopCount();
        EXPECT_EQ(counted, repetitions == GifWriter::kEndless ? -1 : repetitions);
    }
}

TEST(GifWriter, KeepsTransparentPixels)
{
    QImage frame = filled({4, 4}, kPalette[2]);
    frame.setPixelColor(1, 2, Qt::transparent);
    GifWriter writer({4, 4}, kPalette);
    writer.addFrame(frame, 100);
    const QImage read = ReadBack(writer.finish()).next();
    EXPECT_EQ(read.pixelColor(1, 2).alpha(), 0);
    EXPECT_EQ(read.pixelColor(2, 1), QColor(kPalette[2]));
}

// Readers expect the end code with as many bits as the codes before it require: five
// here, since ten codes for runs have been added.
TEST(GifWriter, WritesTheEndCodeWithTheRightWidth)
{
    const std::vector<int> runs {0, 0, 1, 0, 2, 0, 3, 1, 1, 2, 1};
    QImage frame(static_cast<int>(runs.size()), 1, QImage::Format_ARGB32);
    for (int x = 0; x < frame.width(); ++x)
        frame.setPixel(x, 0, kPalette[runs[static_cast<std::size_t>(x)]]);
    GifWriter writer(frame.size(), kPalette);
    writer.addFrame(frame, 100);
    // Two bits per pixel, seven bytes, the end of the blocks, the end of the file.
    EXPECT_TRUE(writer.finish().endsWith(QByteArray::fromHex("020704020213215100003b")));
}

// Enough noise to fill the table of codes several times and to use all code widths.
TEST(GifWriter, WritesNoiseOfManyColours)
{
    QVector<QRgb> colours;
    for (int i = 0; i < 256; ++i)
        colours.append(qRgb(i, 255 - i, i * 7 % 256));
    colours[0] = qRgba(0, 0, 0, 0);
    std::minstd_rand numbers(3);
    QImage frame(200, 150, QImage::Format_ARGB32);
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x)
            frame.setPixel(x, y, colours[1 + static_cast<int>(numbers() % 255)]);
    }
    GifWriter writer(frame.size(), colours);
    writer.addFrame(frame, 100);
    EXPECT_EQ(ReadBack(writer.finish()).next(), frame);
}

} // namespace
} // namespace plix::test
