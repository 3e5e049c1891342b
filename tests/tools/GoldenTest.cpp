// The layout of each example card equals its golden file.
#include "ToolRun.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <set>

namespace plix::test {
namespace {

const QString kCardsFolder = QStringLiteral(PLIX_CARDS);
const QString kGoldenFolder = QStringLiteral(PLIX_GOLDEN);

std::set<std::string> namesIn(const QString& folder)
{
    std::set<std::string> names;
    for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.json")}))
        names.insert(file.completeBaseName().toStdString());
    return names;
}

QString fileIn(const QString& folder, const std::string& name)
{
    return QStringLiteral("%1/%2.json").arg(folder, QString::fromStdString(name));
}

std::string firstDifference(const std::string& golden, const std::string& actual)
{
    const std::vector<std::string> goldenLines = linesOf(golden);
    const std::vector<std::string> actualLines = linesOf(actual);
    std::size_t line = 0;
    while (line < goldenLines.size() && line < actualLines.size()
           && goldenLines[line] == actualLines[line])
        ++line;
    const auto shown = [line](const std::vector<std::string>& lines) {
        return line < lines.size() ? lines[line] : std::string("(the end)");
    };
    return "first difference, in line " + std::to_string(line + 1) + ":\n- " + shown(goldenLines)
        + "\n+ " + shown(actualLines);
}

class Golden : public testing::TestWithParam<std::string> { };

TEST_P(Golden, EqualsTheLayoutOfTheCard)
{
    QFile golden(fileIn(kGoldenFolder, GetParam()));
    ASSERT_TRUE(golden.open(QIODevice::ReadOnly));

    const QString card = fileIn(kCardsFolder, GetParam());
    const ToolResult result =
        runTool({"layout", card.toStdString(), "--images", PLIX_IMAGES, "--markup", "--text",
                 "chat_room_check_on_mobile=See your phone"});
    ASSERT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    const std::string expected = golden.readAll().toStdString();
    EXPECT_TRUE(result.output == expected) << firstDifference(expected, result.output);
}

INSTANTIATE_TEST_SUITE_P(Cards, Golden, testing::ValuesIn(namesIn(kCardsFolder)),
                         [](const auto& row) { return row.param; });

TEST(GoldenFiles, AreThoseOfTheExampleCards)
{
    const std::set<std::string> cards = namesIn(kCardsFolder);
    const std::set<std::string> goldens = namesIn(kGoldenFolder);
    EXPECT_FALSE(cards.empty());
    for (const std::string& name : cards)
        EXPECT_TRUE(goldens.count(name)) << name << " has no golden file: run rebaseline";
    for (const std::string& name : goldens)
        EXPECT_TRUE(cards.count(name)) << name << " has no card: run rebaseline";
}

} // namespace
} // namespace plix::test
