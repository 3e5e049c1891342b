// What all texts of a card may cost together.
#include "layout/PlixLimits.h"
#include "model/PlixJsonText.h"
#include "support/PlixTest.h"
#include "ui/CardTree.h"
#include "ui/ExampleCards.h"

#include <kestro_control/TextItem.h>

#include <json/writer.h>

#include <algorithm>

namespace plix::test {
namespace {

class TextBudget : public PlixTest { };

void expectOneLogLine()
{
    EXPECT_EQ(takeLogLine(),
              "call PlixDataMgr::CreateUI failed. The texts of the card cost more than "
                  + std::to_string(kMaximumTextCost) + ".");
    EXPECT_EQ(pendingLogLines(), 0);
}

// A text of this cost has so many characters: the start of its run, and of its script, cost
// as much as eight each.
constexpr int kStartOfText = 16;

std::string words(int cost)
{
    std::string all;
    for (int i = 0; i < cost - kStartOfText; ++i)
        all += i % 2 == 0 ? 'a' : ' ';
    return all;
}

std::string wrapped(const std::string& words)
{
    return text(words, R"("wrap": true,)");
}

// Texts that have used up all but `left` of what the card may spend.
std::string textsThatLeave(int left)
{
    constexpr int kEach = 12'000;
    std::string all;
    int missing = kMaximumTextCost - left;
    for (; missing > kEach + 100; missing -= kEach)
        all += wrapped(words(kEach)) + ",";
    return all + wrapped(words(missing));
}

std::vector<const TextItem*> textsOf(const TestCard& card)
{
    std::vector<const TextItem*> texts;
    forEachItem(*card.root(), [&texts](QGraphicsItem& item) {
        if (const auto* const text = dynamic_cast<const TextItem*>(&item))
            texts.push_back(text);
    });
    std::reverse(texts.begin(), texts.end()); // the last one was visited first
    return texts;
}

int costOf(const std::vector<const TextItem*>& texts)
{
    int cost = 0;
    for (const TextItem* text : texts)
        cost += text->Cost();
    return cost;
}

std::vector<bool> elisionsOf(const std::vector<const TextItem*>& texts)
{
    std::vector<bool> elisions;
    for (const TextItem* text : texts)
        elisions.push_back(text->IsElided());
    return elisions;
}

// The item of the body of an example card, ten times.
std::string tenTimes(const std::string& name)
{
    const std::string body = Json::FastWriter().write(ReadJsonText(exampleCard(name))["body"]);
    std::string all = body;
    for (int i = 1; i < 10; ++i)
        all.append(",").append(body);
    return bubbleWithBody(box("vertical", all));
}

class TextBudgetOfExamples : public PlixTest, public testing::WithParamInterface<std::string> { };

TEST_P(TextBudgetOfExamples, IsEnoughForTenOfThem)
{
    const TestCard card(tenTimes(GetParam()), showExamplePictures);
    const std::vector<const TextItem*> texts = textsOf(card);
    EXPECT_LE(costOf(texts), kMaximumTextCost);
    for (const TextItem* text : texts)
        EXPECT_FALSE(text->ExceedsMaximumCost()) << text->toPlainText().toStdString();
    EXPECT_EQ(pendingLogLines(), 0);
}

INSTANTIATE_TEST_SUITE_P(Cards, TextBudgetOfExamples, testing::ValuesIn(exampleNames()),
                         [](const auto& card) { return card.param; });

TEST_F(TextBudget, IsExact)
{
    constexpr int kLast = 1000;
    for (const int left : {kLast + 1, kLast, kLast - 1}) {
        const TestCard card(
            bubbleWithBody(box("vertical", textsThatLeave(left) + "," + wrapped(words(kLast)))));
        const std::vector<const TextItem*> texts = textsOf(card);
        EXPECT_EQ(texts.back()->IsElided(), left < kLast) << left;
        EXPECT_EQ(costOf(texts), kMaximumTextCost - std::max(0, left - kLast)) << left;
        if (left < kLast)
            expectOneLogLine();
    }
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(TextBudget, LeavesAnEllipsisOfLaterTextsAndLogsOneLine)
{
    const TestCard card(
        bubbleWithBody(box("vertical",
                           textsThatLeave(0) + "," + wrapped("words") + "," + text("one line") + ","
                               + text("😀") + R"(,{"type": "text", "contents": [
                                                   {"type": "span", "text": "one "},
                                                   {"type": "span", "text": "two"}]})")));
    expectOneLogLine();
    const std::vector<const TextItem*> texts = textsOf(card);
    const QRectF ellipsis = texts[texts.size() - 4]->boundingRect();
    EXPECT_GT(ellipsis.width(), 5);
    EXPECT_LT(ellipsis.width(), 30);
    for (std::size_t i = texts.size() - 4; i < texts.size(); ++i) {
        EXPECT_TRUE(texts[i]->IsElided());
        EXPECT_EQ(texts[i]->ShownLineCount(), 1);
        EXPECT_EQ(texts[i]->boundingRect().size(), ellipsis.size());
    }
    EXPECT_EQ(texts.back()->toPlainText(), QStringLiteral("one two"));
    const QString all = card.root()->toGraphicsObject()->property("plainText").toString();
    EXPECT_TRUE(all.endsWith(QString::fromUtf8("words\none line\n😀\none two")));
}

TEST_F(TextBudget, CountsAllZones)
{
    const std::string half = box("vertical", textsThatLeave(kMaximumTextCost / 2));
    const TestCard card(bubbleWithBody(
        half, R"("header": )" + half + R"(, "footer": )" + box("vertical", text("last")) + ","));
    EXPECT_TRUE(textsOf(card).back()->IsElided());
    expectOneLogLine();
}

TEST_F(TextBudget, CutsAtTheSamePlaceAfterEveryChange)
{
    const TestCard card(bubbleWithBody(
        box("vertical", textsThatLeave(500) + "," + wrapped(words(1000)) + "," + text("last"))));
    ignoreLog();
    const std::vector<const TextItem*> texts = textsOf(card);
    const std::vector<bool> elisions = elisionsOf(texts);
    const std::vector<QRectF> geometry = geometryOf(*card.root());
    const auto expectTheSame = [&](const char* change) {
        EXPECT_EQ(elisionsOf(texts), elisions) << change;
        EXPECT_EQ(geometryOf(*card.root()), geometry) << change;
    };
    Plix_RefreshLayout(card.controller());
    expectTheSame("refresh");
    Plix_SetHighLightText(card.controller(), {"a", "last"});
    Plix_RefreshLayout(card.controller());
    expectTheSame("highlight");
    Plix_SetHighLightText(card.controller(), {});
    Plix_ModifyHeight(card.controller(), 0);
    expectTheSame("height");
}

TEST_F(TextBudget, StartsAgainWithEachBuild)
{
    const TestCard card(bubbleWithBody(box("vertical", textsThatLeave(0))));
    EXPECT_EQ(pendingLogLines(), 0);
    const std::unique_ptr<QGraphicsItem> again(Plix_CreateQGraphicsItem(card.controller()));
    EXPECT_EQ(pendingLogLines(), 0);
}

} // namespace
} // namespace plix::test
