// Images come from the folder of the option --images.
#include "ToolRun.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QColor>
#include <QImage>

namespace plix::test {
namespace {

QByteArray pngOf(const QColor& color)
{
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray cardOfImage(const QByteArray& url)
{
    return cardOf(R"({"type": "image", "size": "md", "backgroundColor": "#0000ff", "url": ")" + url
                  + R"("})");
}

const Arguments kRender {"render", "card.json", "-o", "out.png", "--scale", "1"};

// The colour in the middle of the image, inside the body's insets of 20.
QColor shownColor(const ToolFolder& folder)
{
    const QImage picture = QImage::fromData(folder.read("out.png"), "PNG");
    return picture.isNull() ? QColor() : picture.pixelColor(70, 70);
}

struct UrlRow {
    const char* name;
    const char* url;
    const char* file; // the only one in the folder
    bool isFound;
};

class ImageUrl : public testing::TestWithParam<UrlRow> { };

TEST_P(ImageUrl, IsLookedUpByItsLastSegment)
{
    const UrlRow& row = GetParam();
    const ToolFolder folder;
    folder.write("card.json", cardOfImage(row.url));
    folder.write(std::string("images/") + row.file, pngOf(Qt::red));
    folder.write("secret.png", pngOf(Qt::red));
    const ToolResult result = folder.run(kRender + Arguments {"--images", "images"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(shownColor(folder), row.isFound ? QColor(Qt::red) : QColor(Qt::blue));
    const std::string warning = std::string("card.json: warning: no image in images for \"")
        + QByteArray(row.url).replace("\\\\", "\\").toStdString() + "\"\n";
    EXPECT_EQ(result.errors, row.isFound ? "" : warning);
}

INSTANTIATE_TEST_SUITE_P(
    Urls, ImageUrl,
    testing::Values(
        UrlRow {"Plain", "https://example.com/a/pic.png", "pic.png", true},
        UrlRow {"BareName", "pic.png", "pic.png", true},
        UrlRow {"QueryAndFragment", "https://example.com/pic.png?size=2/x#top", "pic.png", true},
        UrlRow {"EncodedBlank", "https://example.com/my%20pic.png", "my pic.png", true},
        UrlRow {"Missing", "https://example.com/other.png", "pic.png", false},
        UrlRow {"Folder", "https://example.com/pics/", "pic.png", false},
        UrlRow {"Empty", "", "pic.png", false},
        UrlRow {"FolderAbove", "https://example.com/..", "pic.png", false},
        UrlRow {"EncodedPathAbove", "https://example.com/..%2Fsecret.png", "pic.png", false},
        UrlRow {"EncodedBackslash", "https://example.com/..%5Csecret.png", "pic.png", false},
        UrlRow {"Backslash", "https://example.com/..\\\\secret.png", "pic.png", false},
        UrlRow {"EncodedFolderAbove", "https://example.com/%2e%2e", "pic.png", false},
        UrlRow {"Colon", "https://example.com/c:pic.png", "c:pic.png", false},
        UrlRow {"EncodedColon", "https://example.com/c%3Apic.png", "c:pic.png", false},
        UrlRow {"DataUrl", "data:image/png;base64,iVBORw0KGgo=", "pic.png", false},
        UrlRow {"Hidden", "https://example.com/.pic.png", ".pic.png", false},
        UrlRow {"EncodedNul", "https://example.com/pic.png%00.gif", "pic.png", false}),
    RowName());

TEST(Images, AreNotShownWithoutAFolder)
{
    const ToolFolder folder;
    folder.write("card.json", cardOfImage("https://example.com/pic.png"));
    folder.write("pic.png", pngOf(Qt::red));
    const ToolResult result = folder.run(kRender);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(shownColor(folder), QColor(Qt::blue));
}

TEST(Images, AreReportedOnceIfMissing)
{
    const ToolFolder folder;
    const QByteArray image = R"({"type": "image", "url": "https://example.com/no.png"})";
    folder.write("card.json", cardOf(image + ", " + image));
    folder.write("images/pic.png", pngOf(Qt::red));
    const ToolResult result = folder.run(kRender + Arguments {"--images", "images"});
    EXPECT_EQ(countOf(result.errors, "no image"), 1);
}

TEST(Images, AreReportedWithoutControlCharacters)
{
    const ToolFolder folder;
    folder.write("card.json", cardOfImage(R"(a\n\u001b[31m b\u00e9.png)"));
    const ToolResult result = folder.run(kRender + Arguments {"--images", "."});
    EXPECT_EQ(result.errors, "card.json: warning: no image in . for \"a%0A%1B[31m b%C3%A9.png\"\n");
}

TEST(Images, NeedAFolder)
{
    const ToolFolder folder;
    folder.write("card.json", cardOfImage("pic.png"));
    for (const char* name : {"nowhere", "card.json", ""}) {
        const ToolResult result = folder.run(kRender + Arguments {"--images", name});
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_TRUE(contains(result.errors, "--images must be an existing folder")) << name;
    }
}

TEST(Images, AreNamedInTheLayout)
{
    const ToolFolder folder;
    folder.write("card.json", cardOfImage("https://example.com/pic.png"));
    folder.write("images/pic.png", pngOf(Qt::red));
    const ToolResult result = folder.run({"layout", "card.json", "--images", "images"});
    EXPECT_TRUE(contains(result.output, R"("picture": "pic.png")")) << result.output;
    EXPECT_FALSE(contains(folder.run({"layout", "card.json"}).output, "picture"));
}

TEST(Images, AreScaledForThePicture)
{
    // Columns of black and white pixels: scaling makes them grey.
    QImage stripes(200, 200, QImage::Format_RGB32);
    for (int x = 0; x < stripes.width(); ++x) {
        for (int y = 0; y < stripes.height(); ++y)
            stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    stripes.save(&buffer, "PNG");

    const ToolFolder folder;
    folder.write("card.json", cardOfImage("stripes.png"));
    folder.write("images/stripes.png", bytes);
    folder.run({"render", "card.json", "-o", "out.png", "--scale", "2", "--images", "images"});
    const QImage picture = QImage::fromData(folder.read("out.png"), "PNG");
    EXPECT_EQ(picture.copy(40, 40, 200, 200).convertToFormat(QImage::Format_RGB32), stripes);
}

TEST(Buttons, HaveTheirLabelInTheLayout)
{
    const ToolFolder folder;
    folder.write("card.json", cardOf(R"({"type": "button", "size": "xl",
        "action": {"type": "uri", "label": "A label that is much longer than the card is wide"}},
        {"type": "button", "action": {"type": "uri", "label": "Short"}})"));
    const std::vector<std::string> lines = linesOf(folder.run({"layout", "card.json"}).output);
    ASSERT_EQ(lines.size(), 6u);
    EXPECT_TRUE(contains(lines[2], R"("fontSize": 22, "elided": true)")) << lines[2];
    EXPECT_TRUE(contains(lines[3], R"("label": "Short", "fontSize": 16})")) << lines[3];
}

} // namespace
} // namespace plix::test
