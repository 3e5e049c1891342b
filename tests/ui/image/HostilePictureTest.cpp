// Files that are made to cost much time or memory.
#include "layout/PlixLimits.h"
#include "support/RowName.h"
#include "ui/image/PictureBytes.h"
#include "ui/image/PictureCard.h"
#include "ui/image/PlixGifPixelCount.h"
#include "ui/image/PlixGifSize.h"
#include "ui/image/PlixJpegMetadata.h"
#include "ui/image/PlixPicture.h"
#include "ui/image/PlixPictureFile.h"
#include "ui/image/PlixPictureHeader.h"
#include "ui/image/PlixPictureWork.h"
#include "ui/image/PlixPngMetadata.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QPainter>

#include <ostream>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace plix::test {
namespace {

QByteArray riff(const QByteArray& chunk)
{
    return "RIFF" + QByteArray::fromHex("40000000") + "WEBP" + chunk;
}

// Frame data of this many codes. Each code stands for one pixel more than the one before,
// until the table of codes is full.
QByteArray gifDataOfManyPixels(int codes)
{
    constexpr int kLastCode = 4095;
    QByteArray data;
    quint32 waiting = 0;
    int waitingBits = 0;
    int codeBits = 9;
    const auto write = [&](int code) {
        waiting |= static_cast<quint32>(code) << waitingBits;
        for (waitingBits += codeBits; waitingBits >= 8; waitingBits -= 8, waiting >>= 8)
            data += static_cast<char>(waiting & 0xFF);
    };
    write(256);
    write(0);
    for (int code = 258; code < 258 + codes - 1; ++code) {
        write(std::min(code, kLastCode));
        if (code + 1 == 1 << codeBits && codeBits < 12)
            ++codeBits;
    }
    return data + static_cast<char>(waiting);
}

QByteArray gifFrameOf(const QSize& size, int bits, const QByteArray& data)
{
    QByteArray frame = "," + littleEndian16(0) + littleEndian16(0) + littleEndian16(size.width())
        + littleEndian16(size.height()) + '\0' + static_cast<char>(bits);
    for (int at = 0; at < data.size(); at += 255) {
        const QByteArray block = data.mid(at, 255);
        frame += static_cast<char>(block.size()) + block;
    }
    return frame + '\0';
}

QByteArray times(int count, const QByteArray& bytes)
{
    return bytes.repeated(count);
}

QByteArray pngWithTexts(const char* type, const QByteArray& head)
{
    return blackPng({10, 10}, times(50, pngChunk(type, head + zlibZeros(1 << 20))));
}

QByteArray withComments(const QByteArray& jpeg, int count)
{
    return jpeg.left(2) + times(count, jpegSegment(0xFE, {})) + jpeg.mid(2);
}

struct HostileRow {
    const char* name;
    // Made by the test: all processes make all rows.
    QByteArray (*bytes)();
    bool isShown;

    friend std::ostream& operator<<(std::ostream& out, const HostileRow& row)
    {
        return out << row.name;
    }
};

class HostilePicture : public PlixTest, public testing::WithParamInterface<HostileRow> { };

TEST_P(HostilePicture, IsShownUnlessItCostsTooMuch)
{
    const QtMessagesIgnored messages;
    const PictureFolder folder;
    const PictureCard card(
        image(folder.write("a.png", GetParam().bytes()), R"("backgroundColor": "#FFFF00",)"));
    const bool isShown = card.at(50, 50) != QColor(Qt::yellow);
    EXPECT_EQ(isShown, GetParam().isShown);
    EXPECT_LT(QtMessagesIgnored::count(), 5);
}

constexpr bool kShown = true;
constexpr bool kRefused = false;

INSTANTIATE_TEST_SUITE_P(
    Gif, HostilePicture,
    testing::Values(
        HostileRow {"ScreenOf65535",
                    [] {
                        return QByteArray(gifHead({65535, 65535}) + gifFrame({1, 1}, 1) + ';');
                    },
                    kRefused},
        HostileRow {"ScreenOverTheLimit",
                    [] {
                        return QByteArray(gifHead({4097, 4096}) + gifFrame({1, 1}, 1) + ';');
                    },
                    kRefused},
        HostileRow {
            "FrameOf65535",
            [] {
                return QByteArray(gifHead({1, 1}) + gifFrameOf({65535, 65535}, 3, "\x98") + ';');
            },
            kRefused},
        HostileRow {
            "FrameOf65535WithoutScreen",
            [] {
                return QByteArray(gifHead({0, 0}) + gifFrameOf({65535, 65535}, 3, "\x98") + ';');
            },
            kRefused},
        HostileRow {"FrameLargerThanItsScreen",
                    [] {
                        return QByteArray(gifHead({10, 10}) + gifFrame({20, 20}, 1) + ';');
                    },
                    kShown},
        HostileRow {"HugeFrameBehindAnEmptyGraphicControl",
                    [] {
                        return QByteArray(gifHead({0, 0}) + QByteArray::fromHex("21f90000")
                                          + gifFrameOf({65535, 4097}, 3, "\x98") + ';');
                    },
                    kRefused},
        HostileRow {"HugeFrameBehindAnEmptyApplicationBlock",
                    [] {
                        return QByteArray(gifHead({0, 0}) + QByteArray::fromHex("21ff0000")
                                          + gifFrameOf({65535, 4097}, 3, "\x98") + ';');
                    },
                    kRefused},
        HostileRow {"HugeFrameInsideAComment",
                    [] {
                        return QByteArray(gifHead({10, 10}) + QByteArray::fromHex("21fe0a")
                                          + gifFrameOf({65535, 4097}, 3, "").left(10) + '\0'
                                          + gifFrame({10, 10}, 1) + ';');
                    },
                    kShown},
        HostileRow {"LargeLaterFrame",
                    [] {
                        return QByteArray(gifHead({10, 10}) + gifFrame({10, 10}, 1)
                                          + gifFrameOf({65535, 65535}, 3, "\x98") + ';');
                    },
                    kShown},
        HostileRow {"DataOfTooManyPixels",
                    [] {
                        return QByteArray(gifHead({100, 100})
                                          + gifFrameOf({100, 100}, 8, gifDataOfManyPixels(300))
                                          + ';');
                    },
                    kRefused},
        HostileRow {"DataOfTooManyPixelsLater",
                    [] {
                        return QByteArray(gifHead({100, 100}) + gifFrame({100, 100}, 1)
                                          + gifFrameOf({100, 100}, 8, gifDataOfManyPixels(300))
                                          + ';');
                    },
                    kRefused},
        HostileRow {"TooManyBitsACode",
                    [] {
                        return QByteArray(gifHead({9, 9}) + gifFrameOf({9, 9}, 13, "\x98") + ';');
                    },
                    kRefused},
        HostileRow {"ThousandsOfFrames",
                    [] {
                        return QByteArray(gifHead({10, 10}) + gifFrame({10, 10}, 1)
                                          + times(5000, gifFrame({1, 1}, 2)));
                    },
                    kShown}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Png, HostilePicture,
    testing::Values(
        HostileRow {"Of20000",
                    [] {
                        return QByteArray(blackPng({20000, 20000}));
                    },
                    kRefused},
        HostileRow {"HeadOfTwoBillion",
                    [] {
                        return QByteArray(pngHeader({0x7FFFFFFF, 0x7FFFFFFF}, 8, 6));
                    },
                    kRefused},
        HostileRow {"OverTheLimit",
                    [] {
                        return QByteArray(blackPng({4097, 4096}));
                    },
                    kRefused},
        HostileRow {"AtTheLimit",
                    [] {
                        return QByteArray(blackPng({4096, 4096}));
                    },
                    kShown},
        HostileRow {"CompressedTexts",
                    [] { return QByteArray(pngWithTexts("zTXt", QByteArray("k\0\0", 3))); },
                    kShown},
        HostileRow {"CompressedInternationalTexts",
                    [] { return QByteArray(pngWithTexts("iTXt", QByteArray("k\0\1\0\0\0", 6))); },
                    kShown},
        HostileRow {"Profile",
                    [] {
                        return QByteArray(blackPng(
                            {10, 10},
                            pngChunk("iCCP", QByteArray("k\0\0", 3) + zlibZeros(20 << 20))));
                    },
                    kShown},
        HostileRow {"ThousandsOfDoubleChunks",
                    [] {
                        return QByteArray(blackPng(
                            {10, 10}, times(20'000, pngChunk("gAMA", bigEndian32(45455)))));
                    },
                    kShown},
        HostileRow {
            "ThousandsOfTransparencies",
            [] {
                return QByteArray(blackPng({10, 10}, times(20'000, pngChunk("tRNS", "\0\1"))));
            },
            kShown},
        HostileRow {
            "ChunkLongerThanTheFile",
            [] {
                return QByteArray(pngHeader({9, 9}, 1, 0) + bigEndian32(0xFFFFFFFF) + "zTXt");
            },
            kRefused}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Jpeg, HostilePicture,
    testing::Values(HostileRow {"Of65500",
                                [] {
                                    return QByteArray(jpegOfScans({65500, 65500}, 1));
                                },
                                kRefused},
                    HostileRow {"OverTheLimit",
                                [] {
                                    return QByteArray(jpegOfScans({4097, 4096}, 1));
                                },
                                kRefused},
                    HostileRow {"FewScans",
                                [] {
                                    return QByteArray(jpegOfScans({100, 100}, 64));
                                },
                                kShown},
                    HostileRow {"ThousandsOfScans",
                                [] {
                                    return QByteArray(jpegOfScans({100, 100}, 5000));
                                },
                                kRefused},
                    HostileRow {
                        "ThousandsOfComments",
                        [] {
                            return QByteArray(withComments(jpegOfScans({100, 100}, 1), 200'000));
                        },
                        kShown}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Others, HostilePicture,
    testing::Values(
        HostileRow {"BmpOf16384", [] { return QByteArray(bmpHead(16384, 16384)); }, kRefused},
        HostileRow {"BmpOfTwoBillion", [] { return QByteArray(bmpHead(0x7FFFFFFF, 0x7FFFFFFF)); },
                    kRefused},
        HostileRow {"BmpOfNegativeWidth",
                    [] { return QByteArray(bmpHead(-10, 10) + QByteArray(1000, '\0')); }, kRefused},
        HostileRow {"BmpOfTheMinimumHeight",
                    [] { return QByteArray(bmpHead(10, -0x7FFFFFFF - 1)); }, kRefused},
        HostileRow {"BmpOfNegativeHugeHeight", [] { return QByteArray(bmpHead(16384, -16384)); },
                    kRefused},
        HostileRow {"BmpFromTheTop",
                    [] { return QByteArray(bmpHead(10, -10) + QByteArray(320, '\0')); }, kShown},
        HostileRow {"WebPOf16384",
                    [] {
                        return QByteArray(
                            riff("VP8X" + QByteArray::fromHex("0a00000000000000ff3f00ff3f00")));
                    },
                    kRefused},
        HostileRow {
            "Svg",
            [] {
                return QByteArray(
                    R"(<svg xmlns="http://www.w3.org/2000/svg" width="30000" height="30000"/>)");
            },
            kRefused},
        HostileRow {"Ico",
                    [] {
                        return QByteArray(
                            QByteArray::fromHex("00000100010010100000010020006804000016000000"));
                    },
                    kRefused},
        HostileRow {"Ppm", [] { return QByteArray("P6 10 10 255 " + QByteArray(300, 'x')); },
                    kRefused},
        HostileRow {"Xpm",
                    [] {
                        return QByteArray(pictureBytes(filled({10, 10}, Qt::red), "XPM"));
                    },
                    kRefused},
        HostileRow {"Xbm", [] { return QByteArray("#define a_width 10\n#define a_height 10\n"); },
                    kRefused},
        HostileRow {"Tiff", [] { return QByteArray(QByteArray::fromHex("49492a0008000000")); },
                    kRefused}),
    RowName());

// ----- Paths that are no files

using HostileFile = PlixTest;

TEST_F(HostileFile, IsNotReadWhenItIsNotAFile)
{
    const PictureFolder folder;
    const QString directory = QString::fromStdString(folder.path("folder"));
    QDir().mkpath(directory);
    QStringList paths {directory,
                       QString::fromStdString(folder.path("missing")),
                       QString(),
                       QStringLiteral("/proc/self/status"),
                       QStringLiteral("/dev/zero"),
                       QStringLiteral("/dev/stdin")};
#ifdef Q_OS_UNIX
    const std::string pipe = folder.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    paths << QString::fromStdString(pipe);
    const std::string loop = folder.path("loop");
    ASSERT_TRUE(QFile::link(QString::fromStdString(loop), QString::fromStdString(loop)));
    paths << QString::fromStdString(loop);
#endif
    for (const QString& path : paths) {
        EXPECT_FALSE(ReadPictureFile(path)) << path.toStdString();
        const PictureCard card(image(path.toStdString(), R"("backgroundColor": "#FFFF00",)"));
        EXPECT_EQ(card.at(50, 50), QColor(Qt::yellow)) << path.toStdString();
    }
}

TEST_F(HostileFile, IsNotReadWhenItIsTooLarge)
{
    const PictureFolder folder;
    const QByteArray picture = pictureBytes(filled({10, 10}, Qt::red));
    const std::string path = folder.write("a.png", picture);
    QFile file(QString::fromStdString(path));
    for (const int more : {-1, 0, 1}) {
        ASSERT_TRUE(file.resize(kMaximumPictureFileBytes + more));
        EXPECT_EQ(ReadPictureFile(file.fileName()).has_value(), more <= 0) << more;
    }
}

TEST_F(HostileFile, IsReadAgainOnlyWhenItHasChanged)
{
    const PictureFolder folder;
    const QByteArray picture = pictureBytes(filled({10, 10}, Qt::red));
    const QDateTime then = QDateTime::currentDateTime().addDays(-1);
    const auto write = [&](const QByteArray& bytes, const QDateTime& time) {
        const std::string path = folder.write("a.png", bytes);
        QFile file(QString::fromStdString(path));
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
        return path;
    };
    const PictureCard card(
        image(write(QByteArray(picture.size(), 'x'), then), R"("backgroundColor": "#FFFF00",)"));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::yellow));
    write(picture, then);
    EXPECT_EQ(card.at(50, 50), QColor(Qt::yellow)) << "same size and time as before";
    write(picture, then.addSecs(2));
    EXPECT_EQ(card.at(50, 50), QColor(Qt::red));
}

// ----- Many and large items

TEST_F(HostileFile, IsDecodedOnceForManyItems)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", blackPng({4096, 4096}));
    const PictureCard card(box("horizontal", list(500, image(path, R"("size": "xxs",)"))));
    const PictureCard first(image(path, R"("size": "xxs",)"));
    EXPECT_EQ(first.at(20, 20), QColor(Qt::black));
    QFile::remove(QString::fromStdString(path));
    EXPECT_EQ(card.at(20, 20), QColor(Qt::black));
}

TEST_F(HostileFile, IsShownInItemsOfMillionsOfPixels)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({10, 10}, Qt::red)));
    const PictureCard card(
        box("vertical", image(path, R"("size": "full", "aspectMode": "cover",)"),
            R"("width": "3000000px", "height": "3000000px",)")
        + ","
        + box("vertical",
              image(path, R"("size": "full", "aspectMode": "cover", "aspectRatio": "1e6:1",)"),
              R"("width": "3000000px",)")
        + ","
        + box("vertical",
              image(path, R"("size": "full", "aspectMode": "cover", "aspectRatio": "1:1e6",)"),
              R"("width": "3000000px",)"));
    QImage canvas(50, 50, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    for (const int i : {0, 1, 2})
        card.item(i).childItems().value(0)->paint(&painter, nullptr, nullptr);
    painter.end();
    EXPECT_EQ(canvas.pixelColor(25, 25), QColor(Qt::red));
}

TEST_F(HostileFile, IsNotEnlargedBeyondAThinItem)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", pictureBytes(filled({10, 10}, Qt::red)));
    // If proportions were kept, the visible line would be scaled to 100000 x 10000.
    const PictureCard card(
        box("vertical",
            image(path, R"("size": "full", "aspectMode": "cover", "aspectRatio": "10000:1",)"),
            R"("width": "100000px",)"));
    QImage canvas(50, 50, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&canvas);
    card.item().childItems().value(0)->paint(&painter, nullptr, nullptr);
    painter.end();
    EXPECT_EQ(canvas.pixelColor(25, 5), QColor(Qt::red));
    PlixPictureWork work(PlixPictureWork::Limit::None);
    EXPECT_EQ(PlixPicture::Get(QString::fromStdString(path))
                  ->Scaled([](const QSize&) { return QSize(100'000, 10); }, work)
                  .size(),
              QSize(100'000, 10));
}

struct ThinRow {
    const char* name;
    QSize picture;

    friend std::ostream& operator<<(std::ostream& out, const ThinRow& row)
    {
        return out << row.name;
    }
};

class ThinPicture : public PlixTest, public testing::WithParamInterface<ThinRow> { };

TEST_P(ThinPicture, CoversTheItemAndFitsIntoIt)
{
    const PictureFolder folder;
    const std::string path = folder.write("a.png", blackPng(GetParam().picture));
    const PictureCard card(image(path, R"("aspectMode": "cover",)") + "," + image(path));
    EXPECT_EQ(areaOf(card.paint(), Qt::black).topLeft(), QPoint(0, 0));
}

INSTANTIATE_TEST_SUITE_P(Shapes, ThinPicture,
                         testing::Values(ThinRow {"Wide", {100'000, 1}},
                                         ThinRow {"High", {1, 100'000}},
                                         ThinRow {"OnePixel", {1, 1}}),
                         RowName());

// ----- Data that is removed before decoding

TEST_F(HostileFile, IsTheSamePngPictureWithoutTexts)
{
    const QByteArray png = pictureBytes(noise({50, 50}));
    const QByteArray more = pngChunk("tEXt", QByteArray("k\0v", 3));
    const int end = png.size() - 12;
    const QByteArray padded = png.left(33) + more + png.mid(33, end - 33) + more + png.mid(end);
    EXPECT_FALSE(StripPngMetadata(padded).contains("tEXt"));
    EXPECT_EQ(QImage::fromData(StripPngMetadata(padded), "png"), QImage::fromData(png, "png"));
}

TEST_F(HostileFile, IsTheSameJpegPictureWithoutComments)
{
    const QByteArray jpeg = pictureBytes(noise({50, 50}), "JPG");
    const QByteArray more = jpegSegment(0xFE, "words") + jpegSegment(0xE1, "camera");
    const PlixStrippedJpeg pixels = StripJpegMetadata(jpeg.left(2) + more + jpeg.mid(2));
    EXPECT_EQ(pixels.scans, 1);
    EXPECT_EQ(pixels.bytes, jpeg);
}

TEST_F(HostileFile, HasTheScansThatTheDecoderCounts)
{
    for (const int scans : {0, 1, 5, 64, 65, 3000})
        EXPECT_EQ(StripJpegMetadata(jpegOfScans({16, 16}, scans)).scans, scans);
    const QByteArray head = QByteArray::fromHex("ffd8");
    EXPECT_EQ(StripJpegMetadata(head + jpegSegment(0xE0, QByteArray::fromHex("ffda"))).scans, 0)
        << "inside other data";
    EXPECT_EQ(StripJpegMetadata(head + QByteArray::fromHex("ffffffda0002")).scans, 1)
        << "after fill bytes";
    EXPECT_EQ(StripJpegMetadata(head + QByteArray::fromHex("ff00ffd0ffda0002")).scans, 1)
        << "after coded pixels";
    EXPECT_EQ(StripJpegMetadata(head + QByteArray::fromHex("fffe0000ffda0002")).scans, 1)
        << "after a comment of an impossible length";
    EXPECT_EQ(StripJpegMetadata(head + QByteArray::fromHex("ffd9ffda0002")).scans, 0)
        << "after the end";
}

qint64 pixelCount(int bits, const QByteArray& data)
{
    PlixGifPixelCount count(bits);
    // In two parts, because files contain it in blocks.
    const int half = data.size() / 2;
    count.Add(data.constData(), half);
    count.Add(data.constData() + half, data.size() - half);
    return count.Count();
}

TEST_F(HostileFile, HasThePixelsOfItsCodes)
{
    constexpr int kMaximum = 4095 - 256;
    qint64 expected = 0;
    for (int codes = 1; codes <= 5000; ++codes) {
        expected += std::min(codes, kMaximum);
        if (codes % 7 == 0 || codes > kMaximum - 5) {
            ASSERT_EQ(pixelCount(8, gifDataOfManyPixels(codes)), expected) << codes;
        }
    }
    // Codes of four bits, the lower half of a byte first.
    EXPECT_EQ(pixelCount(3, QByteArray::fromHex("1821")), 3);
    EXPECT_EQ(pixelCount(3, QByteArray::fromHex("1821191111")), 3) << "up to the end code";
    EXPECT_EQ(pixelCount(3, QByteArray::fromHex("188111")), 4) << "cleared between";
    EXPECT_EQ(pixelCount(3, QByteArray::fromHex("f811")), 1) << "an undefined code";
}

// ----- The size that Qt decodes

struct GifRow {
    const char* name;
    QByteArray bytes;

    friend std::ostream& operator<<(std::ostream& out, const GifRow& row)
    {
        return out << row.name;
    }
};

class GifSize : public PlixTest, public testing::WithParamInterface<GifRow> { };

TEST_P(GifSize, IsThatOfTheDecoder)
{
    const QImage decoded = QImage::fromData(GetParam().bytes, "gif");
    EXPECT_EQ(ReadGifSize(GetParam().bytes), decoded.isNull() ? QSize() : decoded.size());
}

INSTANTIATE_TEST_SUITE_P(
    Files, GifSize,
    testing::Values(
        GifRow {"Plain", gifHead({30, 20}) + gifFrame({30, 20}, 1)},
        GifRow {"SmallFrame", gifHead({30, 20}) + gifFrame({3, 2}, 1)},
        GifRow {"NoScreen", gifHead({0, 0}) + gifFrame({3, 2}, 1)},
        GifRow {"NoWidth", gifHead({0, 20}) + gifFrame({3, 2}, 1)},
        GifRow {"Extensions",
                gifHead({0, 0}) + gifLoops(3) + gifDelay(5)
                    + QByteArray::fromHex("21fe0268690021010361626300") + gifFrame({3, 2}, 1)},
        GifRow {"EmptyGraphicControl",
                gifHead({0, 0}) + QByteArray::fromHex("21f90000") + gifFrame({3, 2}, 1)},
        GifRow {"EmptyGraphicControlWithMore",
                gifHead({0, 0}) + QByteArray::fromHex("21f900032c2c2c00") + gifFrame({3, 2}, 1)},
        GifRow {"LongGraphicControl",
                gifHead({0, 0}) + QByteArray::fromHex("21f908010203040506070800")
                    + gifFrame({3, 2}, 1)},
        GifRow {"EmptyApplication",
                gifHead({0, 0}) + QByteArray::fromHex("21ff00022c2c00") + gifFrame({3, 2}, 1)},
        GifRow {"EmptyComment",
                gifHead({0, 0}) + QByteArray::fromHex("21fe00") + gifFrame({3, 2}, 1)},
        GifRow {"Junk", gifHead({5, 5}) + "x" + gifFrame({3, 2}, 1)},
        GifRow {"EndFirst", gifHead({5, 5}) + ";" + gifFrame({3, 2}, 1)}),
    RowName());

} // namespace
} // namespace plix::test
