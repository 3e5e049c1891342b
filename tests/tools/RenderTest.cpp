#include "ToolRun.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QtEndian>

#include <set>

namespace plix::test {
namespace {

const QByteArray kColouredCard = cardOf(
    R"({"type": "box", "layout": "vertical", "height": "60px", "contents": [
        {"type": "text", "text": "Highlight this word"}]})");

QByteArray renderToBytes(const QByteArray& card, const Arguments& options = {})
{
    const ToolFolder folder;
    folder.write("card.json", card);
    const ToolResult result =
        folder.run(Arguments {"render", "card.json", "-o", "out.png"} + options);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    return folder.read("out.png");
}

QImage render(const QByteArray& card, const Arguments& options = {})
{
    return QImage::fromData(renderToBytes(card, options), "PNG");
}

std::string sizeOf(const QImage& image)
{
    return std::to_string(image.width()) + " x " + std::to_string(image.height());
}

// The four-letter names of the chunks of a PNG file.
std::set<std::string> chunksOf(const QByteArray& png)
{
    std::set<std::string> names;
    for (int i = 8; i + 8 <= png.size();) {
        const quint32 size = qFromBigEndian<quint32>(png.constData() + i);
        names.insert(png.mid(i + 4, 4).toStdString());
        i += 12 + static_cast<int>(size);
    }
    return names;
}

TEST(Render, DrawsTheCardAtTwiceItsSize)
{
    // The body's insets of 20 above and below its box.
    EXPECT_EQ(sizeOf(render(kColouredCard)), "600 x 200");
}

TEST(Render, ScalesOnRequest)
{
    EXPECT_EQ(sizeOf(render(kColouredCard, {"--scale", "1"})), "300 x 100");
    EXPECT_EQ(sizeOf(render(kColouredCard, {"--scale", "0.25"})), "75 x 25");
    EXPECT_EQ(sizeOf(render(kColouredCard, {"--scale=8"})), "2400 x 800");
}

TEST(Render, LeavesTheCornersTransparent)
{
    const QImage image = render(kColouredCard);
    const QPoint right(image.width() - 1, 0);
    const QPoint bottom(0, image.height() - 1);
    for (const QPoint& corner : {QPoint(), right, bottom, right + bottom})
        EXPECT_EQ(image.pixelColor(corner).alpha(), 0) << corner.x() << ", " << corner.y();
    EXPECT_EQ(image.pixelColor(300, 2), QColor(0xF1, 0xF3, 0xF7));
}

TEST(Render, WritesTheSameBytesEachTime)
{
    EXPECT_EQ(renderToBytes(kColouredCard), renderToBytes(kColouredCard));
}

TEST(Render, WritesNoTextsOrTimesIntoThePicture)
{
    const std::set<std::string> chunks = chunksOf(renderToBytes(kColouredCard));
    EXPECT_TRUE(chunks.count("IHDR") && chunks.count("IEND"));
    for (const char* name : {"tEXt", "zTXt", "iTXt", "tIME"})
        EXPECT_FALSE(chunks.count(name)) << name;
}

TEST(Render, DrawsACardWithoutContent)
{
    EXPECT_EQ(sizeOf(render(R"({"type": "bubble"})")), "600 x 1");
}

TEST(RenderOptions, FromOneDrawsTheUsersOwnMessage)
{
    const QImage image = render(kColouredCard, {"--from", "1"});
    EXPECT_EQ(image.pixelColor(300, 2), QColor(0xC0, 0xEA, 0xFC));
}

TEST(RenderOptions, BackgroundRecoloursTheCard)
{
    const QImage named = render(kColouredCard, {"--background", "tomato"});
    EXPECT_EQ(named.pixelColor(300, 2), QColor(0xFF, 0x63, 0x47));
    const QImage coded = render(kColouredCard, {"--background", "#123456"});
    EXPECT_EQ(coded.pixelColor(300, 2), QColor(0x12, 0x34, 0x56));
}

TEST(RenderOptions, HeightMakesThePictureHigher)
{
    const QImage image = render(kColouredCard, {"--height", "150"});
    EXPECT_EQ(sizeOf(image), "600 x 300");
}

struct LimitRow {
    const char* name;
    QByteArray bubbleSize;
    QByteArray boxHeight;
    std::string scale;
    std::string expectedSize;
};

class RenderLimit : public testing::TestWithParam<LimitRow> { };

TEST_P(RenderLimit, CutsThePictureAndWarns)
{
    const ToolFolder folder;
    folder.write("card.json",
                 R"({"type": "bubble", "size": ")" + GetParam().bubbleSize
                     + R"(", "body": {"type": "box", "layout": "vertical", "height": ")"
                     + GetParam().boxHeight + R"(", "contents": []}})");
    const ToolResult result =
        folder.run({"render", "card.json", "-o", "out.png", "--scale", GetParam().scale});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors,
              "card.json: warning: the card is too large; its picture is cut to "
                  + GetParam().expectedSize + " pixels\n");
    EXPECT_EQ(sizeOf(QImage(folder.path("out.png"))), GetParam().expectedSize);
}

INSTANTIATE_TEST_SUITE_P(
    Tool, RenderLimit,
    testing::Values(LimitRow {"OfASide", "mega", "40000px", "1", "300 x 32767"},
                    LimitRow {"OfAllPixels", "giga", "3000px", "8", "4000 x 16000"},
                    LimitRow {"WithTheLargestHeight", "nano", "2147483647px", "2", "240 x 32767"}),
    RowName());

} // namespace
} // namespace plix::test
