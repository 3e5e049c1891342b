#include "ToolRun.h"

#include <gtest/gtest.h>

#include <QImage>

namespace plix::test {
namespace {

const Arguments kDrawGallery {"gallery", "in", "-o", "made/out"};

const QByteArray kCard = R"({"type": "bubble", "size": "nano", "body": {"type": "box",
    "layout": "vertical", "height": "50px", "contents": []}})";

TEST(Gallery, DrawsEveryCardAndASheet)
{
    const ToolFolder folder;
    folder.write("in/b.second.json", kCard);
    folder.write("in/a.json", kCard);
    folder.write("in/notes.txt", "no card");
    const ToolResult result = folder.run(kDrawGallery);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output,
              "[1/2] a: 240 x 100 pixels\n"
              "[2/2] b.second: 240 x 100 pixels\n"
              "Cards:         made/out/cards\n"
              "Contact sheet: made/out/gallery.png\n"
              "2 of 2 cards drawn\n");
    for (const char* name : {"a", "b.second"}) {
        const std::string path = "made/out/cards/" + std::string(name) + ".png";
        EXPECT_EQ(QImage(folder.path(path)).size(), QSize(240, 100)) << name;
    }
    const QImage sheet(folder.path("made/out/gallery.png"));
    EXPECT_EQ(sheet.size(), QSize(360, 162)) << "two cards side by side, below their names";
}

TEST(Gallery, PassesTheOptionsOn)
{
    const ToolFolder folder;
    folder.write("in/a.json", kCard);
    const ToolResult result =
        folder.run(kDrawGallery + Arguments {"--scale", "1", "--background", "lime"});
    EXPECT_EQ(result.exitCode, 0);
    const QImage picture(folder.path("made/out/cards/a.png"));
    EXPECT_EQ(picture.size(), QSize(120, 50));
    EXPECT_EQ(picture.pixelColor(60, 25), QColor(0, 255, 0));
    const QImage sheet(folder.path("made/out/gallery.png"));
    bool isOnSheet = false;
    for (int y = 0; y < sheet.height(); ++y)
        isOnSheet = isOnSheet || sheet.pixelColor(100, y) == QColor(0, 255, 0);
    EXPECT_TRUE(isOnSheet);
}

TEST(Gallery, ContinuesAfterCardsThatFail)
{
    const ToolFolder folder;
    folder.write("in/a.json", "[]");
    folder.write("in/b.json", kCard);
    folder.write("in/c.json", R"({"type": "bubbles"})");
    const ToolResult result = folder.run(kDrawGallery);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(
        result.output.starts_with("[1/3] a: failed\n[2/3] b: 240 x 100 pixels\n[3/3] c: failed\n"))
        << result.output;
    EXPECT_TRUE(result.output.ends_with("1 of 3 cards drawn\n"));
    EXPECT_EQ(result.errors,
              "in/a.json:1:1: error: a card must be a JSON object\n"
              "in/c.json:1:10: error: the \"type\" of a card must be \"bubble\"\n");
    EXPECT_TRUE(folder.contains("made/out/cards/b.png"));
    EXPECT_FALSE(folder.contains("made/out/cards/a.png"));
}

TEST(Gallery, ExitsWithTwoIfACardCannotBeWritten)
{
    const ToolFolder folder;
    folder.write("in/a.json", kCard);
    folder.write("in/b.json", "{}");
    folder.write("made/out/cards/a.png/inside", "");
    const ToolResult result = folder.run(kDrawGallery);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.output.ends_with("0 of 2 cards drawn\n"));
    EXPECT_FALSE(folder.contains("made/out/gallery.png"));
}

TEST(Gallery, WritesTheSameSheetEachTime)
{
    const ToolFolder folder;
    folder.write("in/a.json", kCard);
    folder.run(kDrawGallery);
    const QByteArray sheet = folder.read("made/out/gallery.png");
    folder.run(kDrawGallery);
    EXPECT_FALSE(sheet.isEmpty());
    EXPECT_EQ(folder.read("made/out/gallery.png"), sheet);
}

TEST(Gallery, OfAMissingFolderIsAFileError)
{
    const ToolResult result = ToolFolder().run(kDrawGallery);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "in: error: No such folder\n");
}

TEST(Gallery, OfAFolderWithoutCardsIsAFileError)
{
    const ToolFolder folder;
    folder.write("in/notes.txt", "");
    const ToolResult result = folder.run(kDrawGallery);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "in: error: No *.json file in this folder\n");
}

TEST(Gallery, InAFolderThatCannotBeCreatedIsAFileError)
{
    const ToolFolder folder;
    folder.write("in/a.json", kCard);
    folder.write("made", "a file");
    const ToolResult result = folder.run(kDrawGallery);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "made/out: error: Cannot create this folder\n");
}

} // namespace
} // namespace plix::test
