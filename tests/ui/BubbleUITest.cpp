// The card itself: its outline, its background and its height.
#include "ui/PlixBubbleUI.h"

#include "model/PlixDataBubble.h"
#include "support/LayoutNode.h"
#include "support/Picture.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/PlixBoxUI.h"

#include <QPainterPath>

#include <ostream>

namespace plix::test {
namespace {

const QColor kBackgroundOfOthers(0xF1, 0xF3, 0xF7);
const QColor kBackgroundOfUser(0xC0, 0xEA, 0xFC);

std::string plainCard(const std::string& more = {})
{
    return bubbleWithBody(box("vertical", "", R"("height": "100px",)"), more);
}

QColor backgroundOf(const TestCard& card)
{
    return Picture(*card.root()).at({150, 50});
}

struct OutlineRow {
    const char* name;
    double height;
    double radius;

    friend std::ostream& operator<<(std::ostream& out, const OutlineRow& row)
    {
        return out << row.name;
    }
};

class BubbleOutline : public PlixTest, public testing::WithParamInterface<OutlineRow> { };

TEST_P(BubbleOutline, IsRounded)
{
    PlixBubbleUI bubble(nullptr);
    bubble.resize(200, GetParam().height);
    QPainterPath expected;
    expected.addRoundedRect(QRectF(0, 0, 200, GetParam().height), GetParam().radius,
                            GetParam().radius, Qt::AbsoluteSize);
    EXPECT_EQ(bubble.shape(), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Heights, BubbleOutline,
    testing::Values(OutlineRow {"High", 200, 12}, OutlineRow {"JustHighEnough", 24, 12},
                    OutlineRow {"JustTooLow", 23, 11}, OutlineRow {"Low", 20, 10},
                    OutlineRow {"LowAndOdd", 19, 9}, OutlineRow {"NoHeight", 0, 0}),
    RowName());

using Bubble = PlixTest;

TEST_F(Bubble, ClipsItselfAndItsChildrenToItsOutline)
{
    const TestCard card(
        bubbleWithBody(box("vertical", "", R"("height": "100px", "backgroundColor": "#FF0000",)")));
    EXPECT_TRUE(card.root()->flags().testFlag(QGraphicsItem::ItemClipsToShape));
    EXPECT_TRUE(card.root()->flags().testFlag(QGraphicsItem::ItemClipsChildrenToShape));
    const Picture picture(*card.root());
    for (const QPointF corner : {QPointF(1, 1), QPointF(298, 1), QPointF(1, 98), QPointF(298, 98)})
        EXPECT_EQ(picture.at(corner), QColor(Qt::white));
    EXPECT_EQ(picture.at({5, 5}), QColor(Qt::red)) << "a radius of 12, not more";
    EXPECT_EQ(picture.at({150, 0}), QColor(Qt::red));
}

struct WidthRow {
    const char* name;
    const char* size;
    double width;

    friend std::ostream& operator<<(std::ostream& out, const WidthRow& row)
    {
        return out << row.name;
    }
};

class BubbleSize : public PlixTest, public testing::WithParamInterface<WidthRow> { };

TEST_P(BubbleSize, IsTheWidthOfTheCard)
{
    const TestCard card(plainCard(std::string(R"("size": ")") + GetParam().size + "\","));
    EXPECT_EQ(card.ui<PlixBubbleUI>({})->size(), QSizeF(GetParam().width, 100));
    EXPECT_EQ(card.ui<PlixBoxUI>({0})->size().width(), GetParam().width);
}

INSTANTIATE_TEST_SUITE_P(
    Words, BubbleSize,
    testing::Values(WidthRow {"Giga", "giga", 500}, WidthRow {"AutoGiga", "autogiga", 385},
                    WidthRow {"SnAutoGiga", "sn_autogiga", 343}, WidthRow {"Mega", "mega", 300},
                    WidthRow {"Kilo", "kilo", 260}, WidthRow {"Micro", "micro", 160},
                    WidthRow {"Nano", "nano", 120}, WidthRow {"Unknown", "tera", 300},
                    WidthRow {"Empty", "", 300}),
    RowName());

TEST_F(Bubble, IsAColumn)
{
    const TestCard card(plainCard());
    EXPECT_EQ(card.ui<PlixBubbleUI>({})->orientation(), Qt::Vertical);
    EXPECT_EQ(card.ui<PlixBubbleUI>({})->YogaLayoutItem::layoutDirection(), Qt::LeftToRight);
}

struct BubbleDirectionRow {
    const char* name;
    const char* direction;
    Qt::LayoutDirection expected;

    friend std::ostream& operator<<(std::ostream& out, const BubbleDirectionRow& row)
    {
        return out << row.name;
    }
};

class BubbleDirection : public PlixTest, public testing::WithParamInterface<BubbleDirectionRow> { };

TEST_P(BubbleDirection, IsExactlyTheWord)
{
    const TestCard card(plainCard(std::string(R"("direction": ")") + GetParam().direction + "\","));
    EXPECT_EQ(card.ui<PlixBubbleUI>({})->YogaLayoutItem::layoutDirection(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Words, BubbleDirection,
                         testing::Values(BubbleDirectionRow {"Rtl", "rtl", Qt::RightToLeft},
                                         BubbleDirectionRow {"Ltr", "ltr", Qt::LeftToRight},
                                         BubbleDirectionRow {"OtherCase", "RTL", Qt::LeftToRight},
                                         BubbleDirectionRow {"Empty", "", Qt::LeftToRight}),
                         RowName());

// ----- Background

TEST_F(Bubble, HasTheBackgroundOfItsSender)
{
    const auto backgroundFrom = [](int from) {
        return backgroundOf(TestCard(plainCard(), [from](PlixDataController* controller) {
            Plix_InitSetFrom(controller, from);
        }));
    };
    EXPECT_EQ(backgroundFrom(0), kBackgroundOfOthers);
    EXPECT_EQ(backgroundFrom(1), kBackgroundOfUser);
    EXPECT_EQ(backgroundFrom(2), kBackgroundOfOthers);
    EXPECT_EQ(backgroundFrom(-1), kBackgroundOfOthers);
}

TEST_F(Bubble, KeepsItsBackgroundWhenTheSenderIsNoLongerTheUser)
{
    const TestCard card(plainCard());
    card.ui<PlixBubbleUI>({})->setFrom(1);
    card.ui<PlixBubbleUI>({})->setFrom(0);
    EXPECT_EQ(backgroundOf(card), kBackgroundOfUser);
    card.ui<PlixBubbleUI>({})->resumeBackgroundColor();
    EXPECT_EQ(backgroundOf(card), kBackgroundOfOthers);
}

TEST_F(Bubble, ShowsAnotherBackgroundUntilTheFirstIsResumed)
{
    for (const int from : {0, 1}) {
        const TestCard card(plainCard(), [from](PlixDataController* controller) {
            Plix_InitSetFrom(controller, from);
        });
        Plix_SetBubbleBkColor(card.controller(), "#123456");
        EXPECT_EQ(backgroundOf(card), QColor(0x12, 0x34, 0x56));
        Plix_ResumeBubbleBkColor(card.controller());
        EXPECT_EQ(backgroundOf(card), from == 1 ? kBackgroundOfUser : kBackgroundOfOthers);
    }
}

TEST_F(Bubble, ShowsAnInvalidBackgroundInBlack)
{
    const TestCard card(plainCard());
    card.ui<PlixBubbleUI>({})->setBackgroundColor("no colour");
    EXPECT_EQ(backgroundOf(card), QColor(Qt::black));
}

// ----- Height

double heightOf(const TestCard& card)
{
    return card.ui<PlixBubbleUI>({})->size().height();
}

TEST_F(Bubble, GrowsItsBodyToTheHeight)
{
    const std::string header = R"("header": )" + box("vertical", "", R"("height": "40px",)") + ",";
    const std::string footer = R"("footer": )" + box("vertical", "", R"("height": "30px",)") + ",";
    const TestCard card(plainCard(header + footer));
    ASSERT_EQ(heightOf(card), 170);
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 250), 0);
    EXPECT_EQ(heightOf(card), 250);
    EXPECT_EQ(card.ui<PlixBoxUI>({0})->size().height(), 40);
    EXPECT_EQ(card.ui<PlixBoxUI>({1})->size().height(), 180);
    EXPECT_EQ(card.ui<PlixBoxUI>({2})->pos().y(), 220);
    EXPECT_EQ(card.ui<PlixBoxUI>({2})->size().height(), 30);
}

TEST_F(Bubble, GrowsABodyWithoutAHeightOfItsOwn)
{
    const TestCard card(bubbleWithBody(box("vertical", text("a") + "," + text("b"))));
    const double height = heightOf(card);
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 333), 0);
    EXPECT_GT(333, height);
    EXPECT_EQ(heightOf(card), 333);
}

TEST_F(Bubble, DoesNotShrink)
{
    const TestCard card(plainCard());
    for (const int height : {99, 100, 0, -5}) {
        EXPECT_EQ(Plix_ModifyHeight(card.controller(), height), 0);
        EXPECT_EQ(heightOf(card), 100);
        EXPECT_EQ(card.ui<PlixBoxUI>({0})->styleHeight(), 100);
    }
}

TEST_F(Bubble, DoesNotGrowWithoutABody)
{
    const TestCard card(R"({"type": "bubble", "header": )"
                        + box("vertical", "", R"("height": "40px",)") + "}");
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 30), 0) << "high enough";
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 400), -1);
    EXPECT_EQ(heightOf(card), 40);
}

TEST_F(Bubble, GrowsABodyOfAnyClass)
{
    const TestCard card(bubbleWithBody(text("a")));
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 400), 0);
    EXPECT_EQ(heightOf(card), 400);
}

// ----- Children

class BubbleChild : public LayoutNode {
public:
    explicit BubbleChild(int result)
        : result_(result)
    {
    }

    int setHighlightText(const QStringList&) override
    {
        ++calls;
        return result_;
    }

    int calls = 0;

private:
    int result_;
};

TEST_F(Bubble, HighlightsInEveryChild)
{
    PlixBubbleUI bubble(nullptr);
    EXPECT_EQ(bubble.setHighlightText({}), -1);
    BubbleChild withoutWord(-1);
    BubbleChild withWord(0);
    BubbleChild last(-1);
    bubble.addChild(&withoutWord);
    EXPECT_EQ(bubble.setHighlightText({}), -1);
    bubble.addChild(&withWord);
    bubble.addChild(&last);
    EXPECT_EQ(bubble.setHighlightText({}), 1);
    EXPECT_EQ(last.calls, 1);
}

TEST_F(Bubble, StretchesItsChildren)
{
    PlixBubbleUI bubble(nullptr);
    LayoutNode child;
    bubble.addChild(&child);
    YGUnit unit = YGUnitUndefined;
    EXPECT_EQ(child.styleWidth(unit), 100);
    EXPECT_EQ(unit, YGUnitPercent);
}

} // namespace
} // namespace plix::test
