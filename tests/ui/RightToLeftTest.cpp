// Cards of the direction "rtl".
#include "support/Picture.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/PlixBoxUI.h"
#include "ui/text/PlixTextUI.h"

#include <QTextDocument>

#include <ostream>

namespace plix::test {
namespace {

constexpr char kHebrew[] = "ארוחת הערב";
constexpr char kNoInsets[] = R"("paddingAll": "0px",)";

std::string mirrored(const std::string& body)
{
    return bubbleWithBody(body, R"("direction": "rtl",)");
}

std::string block(const std::string& more = {})
{
    return box("vertical", "", R"("flex": 0, "width": "50px", "height": "20px",)" + more);
}

using RightToLeft = PlixTest;

TEST_F(RightToLeft, RunsRowsFromTheRight)
{
    for (const char* layout : {"horizontal", "baseline"}) {
        const TestCard card(mirrored(box(layout, block() + "," + block(), kNoInsets)));
        EXPECT_EQ(card.item({0, 0})->pos().x(), 250);
        EXPECT_EQ(card.item({0, 1})->pos().x(), 200);
    }
}

TEST_F(RightToLeft, KeepsSpacingBetweenTheItemsOfARow)
{
    const TestCard card(
        mirrored(box("horizontal", block() + "," + block() + "," + block(R"("margin": "xl",)"),
                     std::string(R"("spacing": "md",)") + kNoInsets)));
    EXPECT_EQ(card.item({0, 0})->pos().x(), 250) << "nothing before the first";
    EXPECT_EQ(card.item({0, 1})->pos().x(), 192) << "the box's spacing";
    EXPECT_EQ(card.item({0, 2})->pos().x(), 126) << "a margin of its own";
}

TEST_F(RightToLeft, KeepsTheMarginBeforeASeparator)
{
    const TestCard card(mirrored(box(
        "horizontal", block() + "," + component("separator", R"("margin": "md",)") + "," + block(),
        kNoInsets)));
    EXPECT_EQ(card.item({0, 1})->pos().x(), 241);
    EXPECT_EQ(card.item({0, 2})->pos().x(), 191);
}

TEST_F(RightToLeft, LeavesColumnsAsTheyAre)
{
    const TestCard card(mirrored(box("vertical", block() + "," + block(R"("margin": "md",)"),
                                     std::string(R"("spacing": "xl",)") + kNoInsets)));
    EXPECT_EQ(card.item({0, 1})->pos().y(), 28);
}

TEST_F(RightToLeft, CountsStartAndEndOffsetsFromTheOtherSide)
{
    const TestCard card(
        mirrored(box("vertical",
                     block(R"("position": "absolute", "offsetStart": "10px",)") + ","
                         + block(R"("position": "absolute", "offsetEnd": "10px",)"),
                     std::string(R"("height": "100px",)") + kNoInsets)));
    EXPECT_EQ(card.item({0, 0})->pos().x(), 240);
    EXPECT_EQ(card.item({0, 1})->pos().x(), 10);
}

// ----- Texts

struct AlignRow {
    const char* name;
    const char* direction;
    const char* align;
    const char* words;
    enum class Side { Left, Middle, Right } side;

    friend std::ostream& operator<<(std::ostream& out, const AlignRow& row)
    {
        return out << row.name;
    }
};

using Side = AlignRow::Side;

class TextSide : public PlixTest, public testing::WithParamInterface<AlignRow> { };

TEST_P(TextSide, FollowsAlignAndDirection)
{
    const TestCard card(bubbleWithBody(
        box("vertical",
            text(GetParam().words,
                 std::string(R"("wrap": true, "align": ")") + GetParam().align + "\",")
                + "," + text(std::string(200, 'm'), R"("wrap": true,)")),
        std::string(R"("direction": ")") + GetParam().direction + "\","));
    const QRectF line = card.item({0, 0})->sceneBoundingRect();
    const QRectF ink = Picture(*card.root()).inkIn({0, line.top(), 300, line.height()}, {150, 1});
    ASSERT_FALSE(ink.isEmpty());
    ASSERT_LT(ink.width(), 120);
    const double left = ink.left() - 20;
    const double right = 280 - ink.right();
    if (GetParam().side == Side::Left) {
        EXPECT_NEAR(left, 0, 4);
        EXPECT_GT(right, 100);
    } else if (GetParam().side == Side::Right) {
        EXPECT_NEAR(right, 0, 4);
        EXPECT_GT(left, 100);
    } else {
        EXPECT_NEAR(left, right, 4);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TextSide,
    testing::Values(AlignRow {"StartIsLeft", "ltr", "start", "words", Side::Left},
                    AlignRow {"EndIsRight", "ltr", "end", "words", Side::Right},
                    AlignRow {"Center", "ltr", "center", "words", Side::Middle},
                    AlignRow {"UnknownIsStart", "ltr", "justify", "words", Side::Left},
                    AlignRow {"MirroredStartIsRight", "rtl", "start", kHebrew, Side::Right},
                    AlignRow {"MirroredEndIsLeft", "rtl", "end", kHebrew, Side::Left},
                    AlignRow {"MirroredCenter", "rtl", "center", kHebrew, Side::Middle},
                    AlignRow {"MirroredLatinStartIsRight", "rtl", "start", "words", Side::Right},
                    AlignRow {"MirroredLatinEndIsLeft", "rtl", "end", "words", Side::Left}),
    RowName());

TEST_F(RightToLeft, SetsTheParagraphDirectionOfTexts)
{
    const TestCard card(
        mirrored(box("vertical", text("a") + "," + text("b", R"("align": "end",)"))));
    for (const int i : {0, 1}) {
        const QTextOption option = card.ui<PlixTextUI>({0, i})->document()->defaultTextOption();
        EXPECT_EQ(option.textDirection(), Qt::RightToLeft);
    }
    const TestCard plain(bubbleWithBody(box("vertical", text("a"))));
    EXPECT_NE(plain.ui<PlixTextUI>({0, 0})->document()->defaultTextOption().textDirection(),
              Qt::RightToLeft);
}

TEST_F(RightToLeft, ReachesTextsInDeepBoxes)
{
    const TestCard card(mirrored(box("vertical", box("horizontal", box("vertical", text("a"))))));
    EXPECT_EQ(card.ui<PlixTextUI>({0, 0, 0, 0})->document()->defaultTextOption().textDirection(),
              Qt::RightToLeft);
}

} // namespace
} // namespace plix::test
