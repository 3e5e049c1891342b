// How the contents of a box are read: order, indexes, and skipped elements.
#include "model/PlixDataBox.h"
#include "model/PlixDataFiller.h"
#include "model/PlixDataText.h"
#include "model/ReadCard.h"
#include "support/PlixTest.h"

namespace plix::test {
namespace {

class ContentsReading : public PlixTest { };

TEST_F(ContentsReading, EveryTypeWordCreatesItsItem)
{
    ReadCard card(bubbleWithBody(box("vertical", R"(
        {"type": "image"}, {"type": "box"}, {"type": "text"}, {"type": "icon"},
        {"type": "button"}, {"type": "spacer"}, {"type": "filler"}, {"type": "separator"})")));
    const auto top = card.body<PlixDataBox>();
    ASSERT_EQ(top->GetContainer()->GetChildCount(), 8);
    for (int i = 0; i < 8; ++i) {
        const auto item = top->GetContainer()->GetChild(i);
        EXPECT_EQ(item->GetType(), i + 2);
        EXPECT_EQ(item->GetIndex(), i);
        EXPECT_EQ(item->GetParent(), top);
    }
}

TEST_F(ContentsReading, ElementsThatAreNotComponentsAreSkippedButCounted)
{
    ReadCard card(bubbleWithBody(box("vertical", R"(
        {"type": "span"}, {"type": "text", "text": "a"}, "text", 5, null, true, ["text"],
        {"text": "no type"}, {"type": 4}, {"type": null}, {"type": {}}, {"type": "bubble"},
        {"type": "Text"}, {}, {"type": "text", "text": "b"}, {"type": ""}, {"type": "filler"})")));
    EXPECT_EQ(card.result(), 0);
    const auto children = card.body<PlixDataBox>()->GetContainer();
    ASSERT_EQ(children->GetChildCount(), 3);
    EXPECT_EQ(children->GetChild(0)->GetIndex(), 1);
    EXPECT_EQ(children->GetChild(1)->GetIndex(), 14);
    EXPECT_EQ(children->GetChild(2)->GetIndex(), 16);
    EXPECT_EQ(card.body<PlixDataText>({0})->GetText(), "a");
    EXPECT_EQ(card.body<PlixDataText>({1})->GetText(), "b");
    EXPECT_EQ(children->GetChild(2)->GetType(), 8);
}

TEST_F(ContentsReading, ABrokenComponentStaysAmongItsSiblings)
{
    ReadCard card(bubbleWithBody(box("vertical", R"(
        {"type": "text", "text": "a"},
        {"type": "text", "text": "b", "size": "lg", "margin": 5, "action": {"label": "Go"}},
        {"type": "text", "text": "c"})")));
    EXPECT_EQ(card.result(), 0);
    expectOneLogLine("ParseText", {"\"margin\"", "5", "a string"});
    const auto broken = card.body<PlixDataText>({1});
    EXPECT_EQ(broken->GetText(), "b");
    EXPECT_EQ(broken->GetSize(), "lg");
    EXPECT_EQ(broken->GetMargin(), "");
    EXPECT_EQ(broken->GetAction(), nullptr);
    EXPECT_EQ(broken->GetIndex(), 1);
    EXPECT_EQ(card.body<PlixDataText>({2})->GetText(), "c");
    EXPECT_EQ(card.body<PlixDataText>({2})->GetIndex(), 2);
}

TEST_F(ContentsReading, ABrokenBoxLosesItsContentsButNotItsSiblings)
{
    ReadCard card(bubbleWithBody(box("vertical",
                                     box("vertical", R"({"type": "text"})", R"("spacing": 5, )")
                                         + R"(, {"type": "filler"})")));
    expectOneLogLine("ParseBox", {"\"spacing\""});
    EXPECT_EQ(card.body<PlixDataBox>({0})->GetLayout(), "vertical");
    EXPECT_EQ(card.body<PlixDataBox>({0})->GetContainer()->GetChildCount(), 0);
    EXPECT_EQ(card.body<PlixDataFiller>({1})->GetIndex(), 1);
}

TEST_F(ContentsReading, ContentsThatAreNotAnArrayFailTheirComponent)
{
    for (const char* contents : {"{}", R"({"0": {"type": "text"}})", R"("text")", "5", "true"}) {
        SCOPED_TRACE(contents);
        const std::string members = std::string(R"("contents": )") + contents + "}";
        ReadCard card(bubbleWithBody(box("vertical",
                                         R"({"type": "box", )" + members
                                             + R"(, {"type": "text", "text": "t", )" + members
                                             + R"(, {"type": "filler"})")));
        EXPECT_EQ(card.result(), 0);
        expectNextLogLine("ParseBox", {"\"contents\"", "an array"});
        expectOneLogLine("ParseText", {"\"contents\"", "an array"});
        EXPECT_EQ(card.body<PlixDataBox>({0})->GetContainer()->GetChildCount(), 0);
        EXPECT_EQ(card.body<PlixDataText>({1})->GetText(), "t");
        EXPECT_EQ(card.body<PlixDataFiller>({2})->GetIndex(), 2);
    }
}

TEST_F(ContentsReading, ABoxReadsItsActionBeforeItsContents)
{
    ReadCard card(bubbleWithBody(
        R"({"type": "box", "contents": [{"type": "text", "margin": 2}], "action": 1})"));
    expectNextLogLine("ParseAction");
    expectOneLogLine("ParseText");
}

} // namespace
} // namespace plix::test
