#include "ToolRun.h"

#include <gtest/gtest.h>

#include <QFileInfo>

namespace plix::test {
namespace {

struct OutputRow {
    const char* name;
    std::string command;
    std::string output;
    std::string reason;
};

class UnwritableOutput : public testing::TestWithParam<OutputRow> { };

TEST_P(UnwritableOutput, IsAFileError)
{
    const ToolFolder folder;
    folder.write("card.json", cardOf(""));
    folder.write("folder/inside", "");
    const ToolResult result =
        folder.run({GetParam().command, "card.json", "-o", GetParam().output});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, GetParam().output + ": error: " + GetParam().reason + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Tool, UnwritableOutput,
    testing::Values(
        OutputRow {"PictureInAMissingFolder", "render", "nowhere/out.png",
                   "No such file or directory"},
        OutputRow {"LayoutInAMissingFolder", "layout", "nowhere/out.json",
                   "No such file or directory"},
        OutputRow {"PictureOverAFolder", "render", "folder", "Is a directory"},
        OutputRow {"PictureOnAFullDevice", "render", "/dev/full", "No space left on device"},
        OutputRow {"LayoutOnAFullDevice", "layout", "/dev/full", "No space left on device"}),
    [](const auto& row) { return row.param.name; });

TEST(Output, OfAFailedRunLeavesTheOldFileAlone)
{
    const ToolFolder folder;
    folder.write("card.json", "{}");
    folder.write("out.png", "old");
    const ToolResult result = folder.run({"render", "card.json", "-o", "out.png"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(folder.read("out.png"), QByteArray("old"));
}

TEST(Output, OntoADeviceLeavesItADevice)
{
    const ToolFolder folder;
    folder.write("card.json", cardOf(""));
    const ToolResult result = folder.run({"layout", "card.json", "-o", "/dev/null"});
    EXPECT_EQ(result.exitCode, 0);
    const QFileInfo device(QStringLiteral("/dev/null"));
    EXPECT_TRUE(device.exists());
    EXPECT_FALSE(device.isFile());
}

} // namespace
} // namespace plix::test
