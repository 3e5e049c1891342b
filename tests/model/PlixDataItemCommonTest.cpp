#include "model/PlixDataItemCommon.h"

#include "model/PlixDataBox.h"
#include "model/PlixDataIcon.h"
#include "model/PlixDataText.h"
#include "model/ReadCard.h"
#include "support/PlixTest.h"

namespace plix::test {
namespace {

class PlixDataItemCommonTest : public PlixTest { };

TEST_F(PlixDataItemCommonTest, HasDefaults)
{
    const PlixDataText item;
    EXPECT_EQ(item.GetPosition(), "relative");
    EXPECT_EQ(item.GetMargin(), "");
    EXPECT_EQ(item.GetOffsetTop(), "");
    EXPECT_EQ(item.GetOffsetBottom(), "");
    EXPECT_EQ(item.GetOffsetStart(), "");
    EXPECT_EQ(item.GetOffsetEnd(), "");
    EXPECT_TRUE(item.IsGrowDefault());
    EXPECT_EQ(item.GetGrow(), 1);
    EXPECT_FALSE(item.IsAbsolute());
}

TEST_F(PlixDataItemCommonTest, TheDefaultGrowDependsOnTheBox)
{
    const struct {
        const char* behaviour;
        const char* layout;
        const char* flex;
        int grow;
    } rows[] = {
        {"a column's items do not grow", "vertical", "", 0},
        {"a row's items grow", "horizontal", "", 1},
        {"a baseline row's items grow", "baseline", "", 1},
        {"a box of an unknown layout is not a column", "Vertical", "", 1},
        {"a box without layout is not a column", "", "", 1},
        {"an explicit 0 wins in a row", "horizontal", R"("flex": 0, )", 0},
        {"an explicit 3 wins in a column", "vertical", R"("flex": 3, )", 3},
        {"an explicit 1 wins in a column", "vertical", R"("flex": 1, )", 1},
        {"a negative one is kept", "vertical", R"("flex": -2, )", -2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.behaviour);
        ReadCard card(
            bubbleWithBody(box(row.layout, std::string("{") + row.flex + R"("type": "text"})")));
        const auto text = card.body<PlixDataText>({0});
        EXPECT_EQ(text->GetGrow(), row.grow);
        EXPECT_EQ(text->IsGrowDefault(), std::string(row.flex).empty());
    }
}

TEST_F(PlixDataItemCommonTest, ATopItemGrowsByDefault)
{
    ReadCard card(bubbleWithBody(box("vertical", "")));
    EXPECT_EQ(card.body<PlixDataBox>()->GetGrow(), 1);
}

TEST_F(PlixDataItemCommonTest, DescendantsOfAnAbsoluteItemAreAbsolute)
{
    const std::string text = R"({"type": "text", "position": "relative"})";
    ReadCard card(bubbleWithBody(
        box("vertical",
            box("vertical", box("vertical", text) + ", " + text + R"(, {"type": "icon"})",
                R"("position": "absolute", )")
                + ", " + text)));
    EXPECT_FALSE(card.body<PlixDataBox>()->IsAbsolute());
    EXPECT_TRUE(card.body<PlixDataBox>({0})->IsAbsolute());
    EXPECT_TRUE(card.body<PlixDataBox>({0, 0})->IsAbsolute());
    EXPECT_TRUE(card.body<PlixDataText>({0, 0, 0})->IsAbsolute());
    EXPECT_TRUE(card.body<PlixDataText>({0, 1})->IsAbsolute());
    EXPECT_TRUE(card.body<PlixDataIcon>({0, 2})->IsAbsolute());
    EXPECT_FALSE(card.body<PlixDataText>({1})->IsAbsolute()) << "a sibling of the absolute box";
}

TEST_F(PlixDataItemCommonTest, OnlyTheExactWordIsAbsolute)
{
    for (const char* word : {"Absolute", "absolute ", "fixed", ""}) {
        PlixDataText text;
        text.SetPosition(word);
        EXPECT_FALSE(text.IsAbsolute()) << word;
    }
    PlixDataText text;
    text.SetPosition("absolute");
    EXPECT_TRUE(text.IsAbsolute());
}

} // namespace
} // namespace plix::test
