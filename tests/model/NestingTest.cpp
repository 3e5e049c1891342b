// How deep boxes may be nested.
#include "model/PlixDataText.h"
#include "model/PlixJsonDataParse.h"
#include "model/ReadCard.h"
#include "support/PlixTest.h"

namespace plix::test {
namespace {

constexpr int kMost = PlixJsonDataParse::kMaxNestedBoxes;

class Nesting : public PlixTest { };

std::string nested(int depth, std::string card = text("deep"))
{
    for (int i = 0; i < depth; ++i)
        card = box(i % 2 == 0 ? "vertical" : "horizontal", card);
    return card;
}

// From the body's box to what is in it at that depth.
std::vector<int> pathTo(int depth)
{
    return std::vector<int>(static_cast<std::size_t>(depth - 1), 0);
}

TEST_F(Nesting, HasRoomForCardsThatPeopleWrite)
{
    EXPECT_GE(kMost, 20);
}

TEST_F(Nesting, IsReadAsDeepAsIsAllowed)
{
    ReadCard card(bubbleWithBody(nested(kMost)));
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(card.body<PlixDataText>(pathTo(kMost + 1))->GetText(), "deep");
}

TEST_F(Nesting, LeavesABoxThatIsTooDeepWithoutItsContents)
{
    const std::string tooDeep = box("horizontal", text("deep"),
                                    R"("spacing": "sm", "flex": 3, "action": {"label": "Go"},)");
    ReadCard card(bubbleWithBody(
        nested(kMost - 1, box("vertical", text("before") + "," + tooDeep + "," + text("after")))));
    EXPECT_EQ(card.result(), 0);
    expectOneLogLine("ParseBox", {"nested deeper than " + std::to_string(kMost) + " levels"});

    const auto parent = card.body<PlixDataBox>(pathTo(kMost));
    ASSERT_EQ(parent->GetContainer()->GetChildCount(), 3);
    EXPECT_EQ(parent->GetContainer()->GetChild(2)->GetIndex(), 2);
    std::vector<int> path = pathTo(kMost + 1);
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

TEST_F(Nesting, TellsOfEachBoxThatIsTooDeepAndOfNoneBelowIt)
{
    const std::string tooDeep = nested(10);
    ReadCard card(bubbleWithBody(nested(kMost, tooDeep + "," + tooDeep)));
    expectNextLogLine("ParseBox", {"nested deeper"});
    expectOneLogLine("ParseBox", {"nested deeper"});
}

TEST_F(Nesting, DoesNotCountNeighbours)
{
    std::string many = box("vertical", "");
    for (int i = 0; i < 3 * kMost; ++i)
        many += "," + box("vertical", box("vertical", ""));
    ReadCard card(bubbleWithBody(nested(kMost - 2, many)));
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(Nesting, StartsAnewInEachZone)
{
    ReadCard card(bubbleWithBody(
        nested(kMost), R"("header": )" + nested(kMost) + R"(, "footer": )" + nested(kMost) + ","));
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(Nesting, CountsRightAfterBoxesThatFailed)
{
    const std::string broken = nested(kMost - 2, R"({"type": "box", "spacing": 5})");
    std::string contents = nested(kMost + 3);
    for (int i = 0; i < 2 * kMost; ++i)
        contents += "," + broken;
    ReadCard card(bubbleWithBody(box("vertical", contents + "," + nested(kMost - 1))));
    expectNextLogLine("ParseBox", {"nested deeper"});
    for (int i = 0; i < 2 * kMost; ++i)
        expectNextLogLine("ParseBox", {"\"spacing\""});
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(Nesting, StartsAnewWithEachMessage)
{
    PlixDataController* const controller = Plix_CreateController();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Plix_InitData(controller, bubbleWithBody(nested(kMost + 1))), 0);
        expectOneLogLine("ParseBox", {"nested deeper"});
    }
    EXPECT_EQ(Plix_InitData(controller, bubbleWithBody(nested(kMost))), 0);
    EXPECT_EQ(pendingLogLines(), 0);
    Plix_Free(controller);
}

TEST_F(Nesting, FailsTheWholeCardOnlyWhereTheJsonReaderGivesUp)
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
