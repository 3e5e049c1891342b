#include "ToolRun.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace plix::test {
namespace {

struct OutputRow {
    const char* name;
    std::string command;
    std::string output;
    std::string reason;
};

class UnwritableOutput : public testing::TestWithParam<OutputRow> { };

// On Windows the text depends on the version and the language.
std::string reasonFor(const OutputRow& row, [[maybe_unused]] const ToolFolder& folder)
{
#if defined(Q_OS_WIN)
    const QString path = folder.path(row.output);
    QFile file(path);
    QSaveFile newFile(path);
    QFileDevice& device = QFileInfo(path).isDir() ? static_cast<QFileDevice&>(file) : newFile;
    EXPECT_FALSE(device.open(QIODevice::WriteOnly));
    return device.errorString().toStdString();
#else
    return row.reason;
#endif
}

TEST_P(UnwritableOutput, IsAFileError)
{
#if defined(Q_OS_WIN)
    if (GetParam().output == "/dev/full")
        GTEST_SKIP() << "Windows has no device that is always full";
#endif
    const ToolFolder folder;
    folder.write("card.json", cardOf(""));
    folder.write("folder/inside", "");
    const ToolResult result =
        folder.run({GetParam().command, "card.json", "-o", GetParam().output});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors,
              GetParam().output + ": error: " + reasonFor(GetParam(), folder) + "\n");
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
    RowName());

TEST(Output, OfAFailedRunKeepsTheOldFile)
{
    const ToolFolder folder;
    folder.write("card.json", "{}");
    folder.write("out.png", "old");
    const ToolResult result = folder.run({"render", "card.json", "-o", "out.png"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(folder.read("out.png"), QByteArray("old"));
}

TEST(Output, ToADeviceKeepsTheDevice)
{
#if defined(Q_OS_WIN)
    GTEST_SKIP() << "Qt opens no device by its name on Windows";
#endif
    const ToolFolder folder;
    folder.write("card.json", cardOf(""));
    const ToolResult result = folder.run({"layout", "card.json", "-o", "/dev/null"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const QFileInfo device(QStringLiteral("/dev/null"));
    EXPECT_TRUE(device.exists());
    EXPECT_FALSE(device.isFile());
}

} // namespace
} // namespace plix::test
