// The space between the content of zones and the edge of the card.
#include "layout/YogaLayoutItem.h"
#include "support/PlixTest.h"
#include "ui/PlixBoxUI.h"

namespace plix::test {
namespace {

class Insets : public PlixTest { };

// Left, top, right, bottom.
std::vector<float> paddings(const YogaLayoutItem& item)
{
    return {item.paddingLeft(), item.paddingTop(), item.paddingRight(), item.paddingBottom()};
}

std::string card(const std::string& size, const std::string& footer)
{
    const std::string zone = R"({"type": "box", "layout": "vertical"})";
    return R"({"type": "bubble", "size": ")" + size + R"(", "header": )" + zone + R"(, "hero": )"
        + zone + R"(, "body": )" + zone + footer + "}";
}

const char kFooter[] = R"(, "footer": {"type": "box", "layout": "vertical"})";

struct Row {
    const char* size;
    float side;
    float bottomAboveFooter;
};

const Row kRows[] = {
    {"giga", 20, 10}, {"mega", 20, 10},     {"kilo", 13, 3},         {"micro", 10, 0},
    {"nano", 10, 0},  {"autogiga", 20, 20}, {"sn_autogiga", 20, 20}, {"unheard of", 20, 20},
    {"Kilo", 20, 20}, {"", 20, 20},
};

TEST_F(Insets, WithAFooter)
{
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.size);
        const TestCard built(card(row.size, kFooter));
        const float side = row.side;
        EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({0})),
                  (std::vector<float> {side, side, side, side}));
        EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({1})), (std::vector<float> {0, 0, 0, 0}));
        EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({2})),
                  (std::vector<float> {side, side, side, row.bottomAboveFooter}));
        EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({3})), (std::vector<float> {10, 10, 10, 10}));
    }
}

TEST_F(Insets, WithoutAFooter)
{
    for (const Row& row : kRows) {
        for (const char* footer : {"", R"(, "footer": {})", R"(, "footer": {"type": "unknown"})",
                                   R"(, "footer": null)"}) {
            SCOPED_TRACE(std::string(row.size) + ' ' + footer);
            const TestCard built(card(row.size, footer));
            const std::vector<float> all(4, row.side);
            EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({0})), all);
            EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({1})), std::vector<float>(4, 0));
            EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({2})), all);
        }
    }
}

TEST_F(Insets, AZoneKeepsItsOwnPadding)
{
    const std::string zone = R"({"type": "box", "layout": "vertical", "paddingAll": "7px"})";
    const TestCard built(R"({"type": "bubble", "header": )" + zone + R"(, "hero": )" + zone
                         + R"(, "body": )" + zone + R"(, "footer": )" + zone + "}");
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({i})), std::vector<float>(4, 7)) << i;
}

TEST_F(Insets, ReplaceSinglePaddings)
{
    const std::string zone =
        R"({"type": "box", "layout": "vertical", "paddingTop": "7px", "paddingEnd": "25%"})";
    const TestCard built(R"({"type": "bubble", "hero": )" + zone + R"(, "body": )" + zone + "}");
    EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({0})), (std::vector<float> {0, 7, 25, 0}));
    EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({1})), std::vector<float>(4, 20));
}

// A zone gets its insets after its children are built.
TEST_F(Insets, ApplyToAbsoluteChildrenOfAZone)
{
    const std::string zone = box("vertical", R"({"type": "box", "position": "absolute"},
        {"type": "box", "position": "absolute", "offsetTop": "5px", "offsetStart": "6px"})");
    const TestCard built(R"({"type": "bubble", "size": "mega", "hero": )" + zone + R"(, "body": )"
                         + zone + R"(, "footer": )" + zone + "}");
    const auto offsets = [&](int zoneNumber, int child) {
        const auto* const item = built.ui<PlixBoxUI>({zoneNumber, child});
        return std::vector<float> {item->positionStart(), item->positionTop(), item->positionEnd(),
                                   item->positionBottom()};
    };
    EXPECT_EQ(offsets(0, 0), std::vector<float>(4, -1));
    EXPECT_EQ(offsets(1, 0), (std::vector<float> {20, 20, 20, 10}));
    EXPECT_EQ(offsets(1, 1), (std::vector<float> {6, 5, 20, 10}));
    EXPECT_EQ(offsets(2, 0), std::vector<float>(4, 10));
}

TEST_F(Insets, DoNotApplyToChildrenOfBoxes)
{
    const TestCard built(bubbleWithBody(box("vertical", R"({"type": "box"})")));
    EXPECT_EQ(paddings(*built.ui<PlixBoxUI>({0, 0})), std::vector<float>(4, 0));
}

TEST_F(Insets, AreReadFromTheBubbleAtEachBuild)
{
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller, card("kilo", ""));
    QGraphicsItem* const first = Plix_CreateQGraphicsItem(controller);
    Plix_InitData(controller, R"({"type": "bubble", "size": "nano"})");
    QGraphicsItem* const second = Plix_CreateQGraphicsItem(controller);
    const auto header = [](QGraphicsItem* root) {
        return paddings(*dynamic_cast<YogaLayoutItem*>(root->childItems().at(0)));
    };
    EXPECT_EQ(header(first), std::vector<float>(4, 13));
    EXPECT_EQ(header(second), std::vector<float>(4, 10));
    delete first;
    delete second;
    Plix_Free(controller);
}

} // namespace
} // namespace plix::test
