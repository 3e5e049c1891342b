#include "tools/ToolRun.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace plix::test {
namespace {

const QByteArray kGood = cardOf(R"({"type": "text", "text": "a"})");
const QByteArray kWarned = cardOf(R"({"type": "text", "text": "a", "colour": "red"})");
const QByteArray kBroken = cardOf(R"({"type": "text", "text": 5})");

QJsonObject parsed(const std::string& text)
{
    return QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
}

TEST(CheckCommand, SaysNothingAboutAGoodCard)
{
    const ToolFolder folder;
    folder.write("card.json", kGood);
    const ToolResult result = folder.run({"check", "card.json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "1 card checked: 0 errors, 0 warnings\n");
}

TEST(CheckCommand, WritesALineForEachFinding)
{
    const ToolFolder folder;
    folder.write("card.json", "{\n  \"type\": \"bubble\",\n  \"siez\": \"mega\"\n}");
    const ToolResult result = folder.run({"check", "card.json"});
    EXPECT_EQ(
        result.output,
        "card.json:3:3: warning: siez: \"siez\" is no key here; try \"size\" [unknown-key]\n");
}

TEST(CheckCommand, FailsForErrorsAndForWarningsIfTheyCount)
{
    const ToolFolder folder;
    folder.write("warned.json", kWarned);
    folder.write("broken.json", kBroken);
    EXPECT_EQ(folder.run({"check", "warned.json"}).exitCode, 0);
    EXPECT_EQ(folder.run({"check", "warned.json", "--strict"}).exitCode, 1);
    EXPECT_EQ(folder.run({"check", "broken.json"}).exitCode, 1);
    EXPECT_EQ(folder.run({"check", "broken.json", "--allow", "wrong-kind"}).exitCode, 0);
    EXPECT_EQ(folder.run({"check", "missing.json", "broken.json"}).exitCode, 2);
    EXPECT_EQ(folder.run({"check"}).exitCode, 2);
    EXPECT_EQ(folder.run({"check", "broken.json", "--allow", "nonsense"}).exitCode, 2);
    EXPECT_EQ(folder.run({"check", "broken.json", "--format", "xml"}).exitCode, 2);
}

TEST(CheckCommand, LeavesAllowedFindingsOut)
{
    const ToolFolder folder;
    folder.write("card.json", kWarned);
    const ToolResult result =
        folder.run({"check", "card.json", "--strict", "--allow", "unknown-key"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
}

TEST(CheckCommand, WritesJson)
{
    const ToolFolder folder;
    folder.write("card.json", kWarned);
    const QJsonObject root = parsed(folder.run({"check", "card.json", "--format", "json"}).output);
    const QJsonObject file = root.value(QStringLiteral("files")).toArray().at(0).toObject();
    EXPECT_EQ(file.value(QStringLiteral("file")).toString(), QStringLiteral("card.json"));
    const QJsonObject finding = file.value(QStringLiteral("findings")).toArray().at(0).toObject();
    EXPECT_EQ(finding.value(QStringLiteral("code")).toString(), QStringLiteral("unknown-key"));
    EXPECT_EQ(finding.value(QStringLiteral("path")).toString(),
              QStringLiteral("body.contents[0].colour"));
    EXPECT_EQ(finding.value(QStringLiteral("suggestion")).toString(), QStringLiteral("\"color\""));
    EXPECT_EQ(finding.value(QStringLiteral("endColumn")).toInt()
                  - finding.value(QStringLiteral("column")).toInt(),
              8);
}

TEST(CheckCommand, WritesSarif)
{
    const ToolFolder folder;
    folder.write("a card.json", kBroken);
    const QJsonObject log = parsed(folder.run({"check", ".", "--format", "sarif"}).output);
    EXPECT_EQ(log.value(QStringLiteral("version")).toString(), QStringLiteral("2.1.0"));
    const QJsonObject run = log.value(QStringLiteral("runs")).toArray().at(0).toObject();
    const QJsonObject result = run.value(QStringLiteral("results")).toArray().at(0).toObject();
    EXPECT_EQ(result.value(QStringLiteral("ruleId")).toString(), QStringLiteral("wrong-kind"));
    EXPECT_EQ(result.value(QStringLiteral("level")).toString(), QStringLiteral("error"));
    const QJsonObject driver =
        run.value(QStringLiteral("tool")).toObject().value(QStringLiteral("driver")).toObject();
    const int index = result.value(QStringLiteral("ruleIndex")).toInt();
    EXPECT_EQ(driver.value(QStringLiteral("rules"))
                  .toArray()
                  .at(index)
                  .toObject()
                  .value(QStringLiteral("id")),
              result.value(QStringLiteral("ruleId")));
    EXPECT_TRUE(contains(QJsonDocument(result).toJson().toStdString(), "a%20card.json"));
}

TEST(CheckCommand, ReadsStandardInput)
{
    const ToolFolder folder;
    const ToolResult result = folder.run({"check", "-"}, kWarned);
    EXPECT_TRUE(contains(result.output, "-:1:"));
    EXPECT_TRUE(contains(result.output, "[unknown-key]"));
}

// More files than are checked without workers, and more than one worker checks.
TEST(CheckCommand, ChecksManyFilesInOrder)
{
    constexpr int kFiles = 450;
    const ToolFolder folder;
    for (int i = 0; i < kFiles; ++i)
        folder.write("cards/" + std::to_string(1000 + i) + ".json", i % 3 == 0 ? kWarned : kGood);
    const ToolResult result = folder.run({"check", "cards", "--no-look"});
    EXPECT_EQ(result.exitCode, 0);
    const std::vector<std::string> lines = linesOf(result.output);
    ASSERT_EQ(lines.size(), kFiles / 3U);
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_TRUE(lines[i].starts_with("cards/" + std::to_string(1000 + 3 * i) + ".json:1:"))
            << lines[i];
    EXPECT_EQ(result.errors, "450 cards checked: 0 errors, 150 warnings\n");
}

TEST(CheckCommand, ReportsAFileThatCannotBeReadAmongMany)
{
    const ToolFolder folder;
    Arguments arguments {"check", "--no-look"};
    for (int i = 0; i < 12; ++i) {
        const std::string name = std::to_string(i) + ".json";
        if (i != 5)
            folder.write(name, kGood);
        arguments.push_back(name);
    }
    const ToolResult result = folder.run(arguments);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(contains(result.errors, "5.json: error: "));
}

} // namespace
} // namespace plix::test
