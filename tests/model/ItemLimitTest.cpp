// How many items a card may have, and how many bytes its message.
#include "layout/PlixLimits.h"
#include "model/PlixDataText.h"
#include "model/PlixJsonText.h"
#include "model/ReadCard.h"
#include "support/PlixTest.h"

#include <json/writer.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace plix::test {
namespace {

class ItemLimit : public PlixTest { };

std::string many(int count, const std::string& one)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all.append(i == 0 ? "" : ",").append(one);
    return all;
}

const char kSeparator[] = R"({"type": "separator"})";

int countOf(const PlixDataContainer& container)
{
    int count = 0;
    for (const auto& child : container.GetChildren()) {
        const auto box = std::dynamic_pointer_cast<PlixDataBox>(child);
        count += 1 + (box ? countOf(*box->GetContainer()) : 0);
    }
    return count;
}

int countOf(PlixDataBubble& bubble)
{
    return countOf(*bubble.GetHeader()) + countOf(*bubble.GetHero()) + countOf(*bubble.GetBody())
        + countOf(*bubble.GetFooter());
}

// The item of the body of an example card.
Json::Value bodyOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return ReadJsonText(file.readAll().toStdString())["body"];
}

TEST_F(ItemLimit, LeavesTenTimesEveryExampleUntouched)
{
    const QDir folder(QStringLiteral(PLIX_CARDS), QStringLiteral("*.json"));
    ASSERT_FALSE(folder.entryInfoList().isEmpty());
    for (const QFileInfo& example : folder.entryInfoList()) {
        const std::string body = Json::FastWriter().write(bodyOf(example.filePath()));
        const int once = countOf(*readComponent<PlixDataBox>(body)->GetContainer()) + 1;
        ReadCard card(bubbleWithBody(box("vertical", many(10, body))));
        EXPECT_EQ(card.result(), 0);
        EXPECT_EQ(countOf(card.bubble()), 10 * once + 1) << example.fileName().toStdString();
    }
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(ItemLimit, LeavesCardsUpToItUntouched)
{
    for (const int items : {kMaximumItems - 1, kMaximumItems}) {
        ReadCard card(bubbleWithBody(box("vertical", many(items - 1, kSeparator))));
        EXPECT_EQ(card.result(), 0);
        EXPECT_EQ(countOf(card.bubble()), items);
        EXPECT_EQ(pendingLogLines(), 0);
    }
}

TEST_F(ItemLimit, CutsTheBoxThatExceedsItWithOneLogLine)
{
    for (const int items : {kMaximumItems + 1, 2 * kMaximumItems, 40'000}) {
        ReadCard card(bubbleWithBody(
            box("vertical", many(items - 1, kSeparator), R"("spacing": "sm", "flex": 3,)")));
        EXPECT_EQ(card.result(), 0);
        EXPECT_EQ(countOf(card.bubble()), kMaximumItems);
        EXPECT_EQ(card.body<PlixDataBox>()->GetSpacing(), "sm");
        expectOneLogLine("ParseBox", {"more than " + std::to_string(kMaximumItems) + " items"});
    }
}

TEST_F(ItemLimit, CountsItemsOfAllBoxesAndZones)
{
    const std::string half = box("vertical", many(kMaximumItems / 2 - 1, kSeparator));
    const std::string header = R"("header": )" + half + ",";
    ReadCard full(bubbleWithBody(half, header));
    EXPECT_EQ(countOf(full.bubble()), kMaximumItems);
    EXPECT_EQ(pendingLogLines(), 0);

    ReadCard cut(bubbleWithBody(half, header + R"("footer": )" + half + ","));
    EXPECT_EQ(countOf(cut.bubble()), kMaximumItems);
    EXPECT_EQ(countOf(*cut.bubble().GetFooter()), 0);
    expectOneLogLine("ParseZone", {"more than"});
}

TEST_F(ItemLimit, LogsOneLineForAllBoxesThatAreCut)
{
    // The inner box is cut, and the outer ones lose what follows it.
    const std::string inner = box("vertical", many(kMaximumItems, kSeparator));
    const std::string middle = box("vertical", inner + "," + many(10, inner));
    ReadCard card(bubbleWithBody(box("vertical", middle + "," + text("after"))));
    EXPECT_EQ(countOf(card.bubble()), kMaximumItems);
    expectOneLogLine("ParseBox", {"more than"});
    EXPECT_EQ(card.body<PlixDataBox>({0, 0})->GetContainer()->GetChildCount(), kMaximumItems - 3);
}

TEST_F(ItemLimit, DoesNotCountElementsThatAreNoItems)
{
    const std::string nothing = many(2 * kMaximumItems, R"({"type": "span"}, 5, null)");
    ReadCard card(bubbleWithBody(box("vertical", nothing + "," + text("last"))));
    EXPECT_EQ(card.body<PlixDataText>({0})->GetText(), "last");
    EXPECT_EQ(card.body<PlixDataText>({0})->GetIndex(), 6 * kMaximumItems);
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(ItemLimit, StartsAgainWithEachMessage)
{
    PlixDataController* const controller = Plix_CreateController();
    const std::string card = bubbleWithBody(box("vertical", many(kMaximumItems - 1, kSeparator)));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Plix_InitData(controller, card), 0);
    EXPECT_EQ(pendingLogLines(), 0);
    Plix_Free(controller);
}

// ----- The message

class MessageLimit : public PlixTest { };

std::string cardOfBytes(std::size_t bytes)
{
    const std::string card = bubbleWithBody(box("vertical", text("words")));
    return card + std::string(bytes - card.size(), ' ');
}

TEST_F(MessageLimit, FailsAMessageOfMoreBytes)
{
    for (const int more : {-1, 0, 1}) {
        ReadCard card(cardOfBytes(static_cast<std::size_t>(kMaximumMessageBytes + more)));
        EXPECT_EQ(card.result(), more > 0 ? -1 : 0);
        EXPECT_EQ(countOf(card.bubble()), more > 0 ? 0 : 2);
        if (more > 0)
            expectOneLogLine("Parse", {std::to_string(kMaximumMessageBytes) + " bytes"});
    }
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(MessageLimit, IsFarAboveRealMessages)
{
    const QDir folder(QStringLiteral(PLIX_CARDS), QStringLiteral("*.json"));
    for (const QFileInfo& example : folder.entryInfoList())
        EXPECT_LE(10 * example.size(), kMaximumMessageBytes) << example.fileName().toStdString();
}

} // namespace
} // namespace plix::test
