// How deep boxes may be nested.
#include "layout/PlixLimits.h"
#include "model/PlixDataText.h"
#include "model/ReadCard.h"
#include "support/PlixTest.h"

namespace plix::test {
namespace {

constexpr int kMaxDepth = kMaximumNestedBoxes;

class Nesting : public PlixTest { };

std::string nested(int depth, std::string card = text("deep"))
{
    for (int i = 0; i < depth; ++i)
        card = box(i % 2 == 0 ? "vertical" : "horizontal", card);
    return card;
}

// The path from the body's box to the item at that depth.
std::vector<int> pathTo(int depth)
{
    return std::vector<int>(static_cast<std::size_t>(depth - 1), 0);
}

TEST_F(Nesting, IsAllowedToTwentyLevelsAtLeast)
{
    EXPECT_GE(kMaxDepth, 20);
}

TEST_F(Nesting, IsReadToTheMaximumDepth)
{
    for (const int depth : {kMaxDepth - 1, kMaxDepth}) {
        ReadCard card(bubbleWithBody(nested(depth)));
        EXPECT_EQ(card.result(), 0);
        EXPECT_EQ(card.body<PlixDataText>(pathTo(depth + 1))->GetText(), "deep");
        EXPECT_EQ(pendingLogLines(), 0);
    }
}

TEST_F(Nesting, LeavesOutTheContentsOfABoxThatIsTooDeep)
{
    const std::string tooDeep = box("horizontal", text("deep"),
                                    R"("spacing": "sm", "flex": 3, "action": {"label": "Go"},)");
    ReadCard card(bubbleWithBody(nested(
        kMaxDepth - 1, box("vertical", text("before") + "," + tooDeep + "," + text("after")))));
    EXPECT_EQ(card.result(), 0);
    expectOneLogLine("ParseBox", {"nested deeper than " + std::to_string(kMaxDepth) + " levels"});

    const auto parent = card.body<PlixDataBox>(pathTo(kMaxDepth));
    ASSERT_EQ(parent->GetContainer()->GetChildCount(), 3);
    EXPECT_EQ(parent->GetContainer()->GetChild(2)->GetIndex(), 2);
    std::vector<int> path = pathTo(kMaxDepth + 1);
    path.back() = 1;
    const auto failed = card.body<PlixDataBox>(path);
    EXPECT_EQ(failed->GetLayout(), "horizontal");
    EXPECT_EQ(failed->GetSpacing(), "sm");
    EXPECT_EQ(failed->GetGrow(), 3);
    ASSERT_NE(failed->GetAction(), nullptr);
    EXPECT_EQ(failed->GetAction()->label, "Go");
    EXPECT_EQ(failed->GetIndex(), 1);
    EXPECT_EQ(failed->GetContainer()->GetChildCount(), 0);
}

TEST_F(Nesting, LogsEachBoxThatIsTooDeepButNoneInsideIt)
{
    const std::string tooDeep = nested(10);
    ReadCard card(bubbleWithBody(nested(kMaxDepth, tooDeep + "," + tooDeep)));
    expectNextLogLine("ParseBox", {"nested deeper"});
    expectOneLogLine("ParseBox", {"nested deeper"});
}

TEST_F(Nesting, DoesNotCountSiblings)
{
    std::string many = box("vertical", "");
    for (int i = 0; i < 3 * kMaxDepth; ++i)
        many += "," + box("vertical", box("vertical", ""));
    ReadCard card(bubbleWithBody(nested(kMaxDepth - 2, many)));
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(Nesting, StartsAgainInEachZone)
{
    ReadCard card(bubbleWithBody(nested(kMaxDepth),
                                 R"("header": )" + nested(kMaxDepth) + R"(, "footer": )"
                                     + nested(kMaxDepth) + ","));
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(Nesting, IsCountedRightAfterBoxesThatFailed)
{
    const std::string broken = nested(kMaxDepth - 2, R"({"type": "box", "spacing": 5})");
    std::string contents = nested(kMaxDepth + 3);
    for (int i = 0; i < 2 * kMaxDepth; ++i)
        contents += "," + broken;
    ReadCard card(bubbleWithBody(box("vertical", contents + "," + nested(kMaxDepth - 1))));
    expectNextLogLine("ParseBox", {"nested deeper"});
    for (int i = 0; i < 2 * kMaxDepth; ++i)
        expectNextLogLine("ParseBox", {"\"spacing\""});
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(Nesting, StartsAgainWithEachMessage)
{
    PlixDataController* const controller = Plix_CreateController();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Plix_InitData(controller, bubbleWithBody(nested(kMaxDepth + 1))), 0);
        expectOneLogLine("ParseBox", {"nested deeper"});
    }
    EXPECT_EQ(Plix_InitData(controller, bubbleWithBody(nested(kMaxDepth))), 0);
    EXPECT_EQ(pendingLogLines(), 0);
    Plix_Free(controller);
}

TEST_F(Nesting, FailsTheCardOnlyAtTheLimitOfTheJsonParser)
{
    // A box is two levels of JSON, its object and its array, of 1000.
    ReadCard deep(bubbleWithBody(nested(490)));
    EXPECT_EQ(deep.result(), 0);
    expectOneLogLine("ParseBox", {"nested deeper"});
    ReadCard tooDeep(bubbleWithBody(nested(510)));
    EXPECT_EQ(tooDeep.result(), -1);
    expectOneLogLine("Parse");
}

} // namespace
} // namespace plix::test
