// What each style setter sets on the node, and what the getters return.
#include "layout/PlixLimits.h"
#include "support/LayoutNode.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <functional>
#include <limits>
#include <ostream>

namespace plix::test {
namespace {

using Item = YogaLayoutItem;

// A setter and the style value that it changes.
struct StyleRow {
    const char* name;
    std::function<void(Item&)> set;
    std::function<YGValue(YGNodeConstRef)> read;
    YGUnit unit;
    float value;

    friend std::ostream& operator<<(std::ostream& out, const StyleRow& row)
    {
        return out << row.name;
    }
};

auto margin(YGEdge edge)
{
    return [edge](YGNodeConstRef node) { return YGNodeStyleGetMargin(node, edge); };
}

auto padding(YGEdge edge)
{
    return [edge](YGNodeConstRef node) { return YGNodeStyleGetPadding(node, edge); };
}

auto position(YGEdge edge)
{
    return [edge](YGNodeConstRef node) { return YGNodeStyleGetPosition(node, edge); };
}

class StyleSetter : public PlixTest, public testing::WithParamInterface<StyleRow> { };

TEST_P(StyleSetter, SetsItsEdgeInItsUnit)
{
    LayoutNode item;
    GetParam().set(item);
    const YGValue value = GetParam().read(item.node());
    EXPECT_EQ(value.unit, GetParam().unit);
    EXPECT_EQ(value.value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Margins, StyleSetter,
    testing::Values(
        StyleRow {"AllSetsLeft", [](Item& i) { i.setMargins(1, 2, 3, 4); }, margin(YGEdgeLeft),
                  YGUnitPoint, 1},
        StyleRow {"AllSetsTop", [](Item& i) { i.setMargins(1, 2, 3, 4); }, margin(YGEdgeTop),
                  YGUnitPoint, 2},
        StyleRow {"AllSetsRight", [](Item& i) { i.setMargins(1, 2, 3, 4); }, margin(YGEdgeRight),
                  YGUnitPoint, 3},
        StyleRow {"AllSetsBottom", [](Item& i) { i.setMargins(1, 2, 3, 4); }, margin(YGEdgeBottom),
                  YGUnitPoint, 4},
        StyleRow {"One", [](Item& i) { i.setMargin(5); }, margin(YGEdgeAll), YGUnitPoint, 5},
        StyleRow {"Top", [](Item& i) { i.setMarginTop(6); }, margin(YGEdgeTop), YGUnitPoint, 6},
        StyleRow {"Left", [](Item& i) { i.setMarginLeft(7); }, margin(YGEdgeLeft), YGUnitPoint, 7},
        StyleRow {"Bottom", [](Item& i) { i.setMarginBottom(8); }, margin(YGEdgeBottom),
                  YGUnitPoint, 8},
        StyleRow {"Negative", [](Item& i) { i.setMarginTop(-6); }, margin(YGEdgeTop), YGUnitPoint,
                  -6}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Paddings, StyleSetter,
    testing::Values(StyleRow {"AllSetsLeft", [](Item& i) { i.setPaddings(1, 2, 3, 4); },
                              padding(YGEdgeLeft), YGUnitPoint, 1},
                    StyleRow {"AllSetsTop", [](Item& i) { i.setPaddings(1, 2, 3, 4); },
                              padding(YGEdgeTop), YGUnitPoint, 2},
                    StyleRow {"AllSetsRight", [](Item& i) { i.setPaddings(1, 2, 3, 4); },
                              padding(YGEdgeRight), YGUnitPoint, 3},
                    StyleRow {"AllSetsBottom", [](Item& i) { i.setPaddings(1, 2, 3, 4); },
                              padding(YGEdgeBottom), YGUnitPoint, 4},
                    StyleRow {"ZeroCounts", [](Item& i) { i.setPaddings(0, 0, 0, 0); },
                              padding(YGEdgeLeft), YGUnitPoint, 0},
                    StyleRow {"One", [](Item& i) { i.setPadding(5); }, padding(YGEdgeAll),
                              YGUnitPoint, 5},
                    StyleRow {"Bottom", [](Item& i) { i.setPaddingBottom(6); },
                              padding(YGEdgeBottom), YGUnitPoint, 6},
                    StyleRow {"LeftPercent", [](Item& i) { i.setPaddingLeftPercent(10); },
                              padding(YGEdgeLeft), YGUnitPercent, 10},
                    StyleRow {"RightPercent", [](Item& i) { i.setPaddingRightPercent(20); },
                              padding(YGEdgeRight), YGUnitPercent, 20},
                    StyleRow {"TopPercent", [](Item& i) { i.setPaddingTopPercent(30); },
                              padding(YGEdgeTop), YGUnitPercent, 30},
                    StyleRow {"BottomPercent", [](Item& i) { i.setPaddingBottomPercent(40); },
                              padding(YGEdgeBottom), YGUnitPercent, 40},
                    StyleRow {"OnePercent", [](Item& i) { i.setPaddingPercent(50); },
                              padding(YGEdgeAll), YGUnitPercent, 50}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Sizes, StyleSetter,
    testing::Values(StyleRow {"Width", [](Item& i) { i.setWidth(12.5); }, &YGNodeStyleGetWidth,
                              YGUnitPoint, 12.5},
                    StyleRow {"WidthPercent", [](Item& i) { i.setWidthPercent(30); },
                              &YGNodeStyleGetWidth, YGUnitPercent, 30},
                    StyleRow {"Height", [](Item& i) { i.setHeight(13); }, &YGNodeStyleGetHeight,
                              YGUnitPoint, 13},
                    StyleRow {"HeightPercent", [](Item& i) { i.setHeightPercent(31); },
                              &YGNodeStyleGetHeight, YGUnitPercent, 31},
                    StyleRow {"MaxWidthPercent", [](Item& i) { i.setMaxWidthPercent(90); },
                              &YGNodeStyleGetMaxWidth, YGUnitPercent, 90}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Offsets, StyleSetter,
    testing::Values(
        StyleRow {"Start", [](Item& i) { i.setPositionStart(1); }, position(YGEdgeStart),
                  YGUnitPoint, 1},
        StyleRow {"End", [](Item& i) { i.setPositionEnd(2); }, position(YGEdgeEnd), YGUnitPoint, 2},
        StyleRow {"Top", [](Item& i) { i.setPositionTop(3); }, position(YGEdgeTop), YGUnitPoint, 3},
        StyleRow {"Bottom", [](Item& i) { i.setPositionBottom(4); }, position(YGEdgeBottom),
                  YGUnitPoint, 4},
        StyleRow {"StartPercentSetsTheLeftEdge", [](Item& i) { i.setPositionStartPercent(10); },
                  position(YGEdgeLeft), YGUnitPercent, 10},
        StyleRow {"EndPercent", [](Item& i) { i.setPositionEndPercent(20); }, position(YGEdgeEnd),
                  YGUnitPercent, 20},
        StyleRow {"TopPercent", [](Item& i) { i.setPositionTopPercent(30); }, position(YGEdgeTop),
                  YGUnitPercent, 30},
        StyleRow {"BottomPercent", [](Item& i) { i.setPositionBottomPercent(40); },
                  position(YGEdgeBottom), YGUnitPercent, 40}),
    RowName());

struct AlignmentRow {
    const char* name;
    int flag;
    bool mainAxis;
    YGJustify justify;
    YGAlign alignSelf;
    YGAlign alignItems = YGAlignStretch;

    friend std::ostream& operator<<(std::ostream& out, const AlignmentRow& row)
    {
        return out << row.name;
    }
};

class Alignment : public PlixTest, public testing::WithParamInterface<AlignmentRow> { };

TEST_P(Alignment, SetsOneStyle)
{
    LayoutNode item;
    // Start from values that no row sets.
    YGNodeStyleSetJustifyContent(item.node(), YGJustifySpaceAround);
    YGNodeStyleSetAlignSelf(item.node(), YGAlignStretch);
    item.setAlignment(GetParam().flag, GetParam().mainAxis);
    EXPECT_EQ(YGNodeStyleGetJustifyContent(item.node()), GetParam().justify);
    EXPECT_EQ(YGNodeStyleGetAlignSelf(item.node()), GetParam().alignSelf);
    EXPECT_EQ(YGNodeStyleGetAlignItems(item.node()), GetParam().alignItems);
}

constexpr YGJustify kNoJustify = YGJustifySpaceAround;
constexpr YGAlign kNoAlign = YGAlignStretch;

INSTANTIATE_TEST_SUITE_P(
    OnTheMainAxis, Alignment,
    testing::Values(AlignmentRow {"Left", Qt::AlignLeft, true, YGJustifyFlexStart, kNoAlign},
                    AlignmentRow {"Right", Qt::AlignRight, true, YGJustifyFlexEnd, kNoAlign},
                    AlignmentRow {"HCenter", Qt::AlignHCenter, true, YGJustifyCenter, kNoAlign},
                    AlignmentRow {"Top", Qt::AlignTop, true, kNoJustify, YGAlignFlexStart},
                    AlignmentRow {"Bottom", Qt::AlignBottom, true, kNoJustify, YGAlignFlexEnd},
                    AlignmentRow {"VCenter", Qt::AlignVCenter, true, kNoJustify, YGAlignCenter},
                    AlignmentRow {"Baseline", Qt::AlignBaseline, true, kNoJustify, kNoAlign,
                                  YGAlignBaseline}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    OnTheCrossAxis, Alignment,
    testing::Values(AlignmentRow {"Left", Qt::AlignLeft, false, kNoJustify, YGAlignFlexStart},
                    AlignmentRow {"Right", Qt::AlignRight, false, kNoJustify, YGAlignFlexEnd},
                    AlignmentRow {"HCenter", Qt::AlignHCenter, false, kNoJustify, YGAlignCenter},
                    AlignmentRow {"Top", Qt::AlignTop, false, YGJustifyFlexStart, kNoAlign},
                    AlignmentRow {"Bottom", Qt::AlignBottom, false, YGJustifyFlexEnd, kNoAlign},
                    AlignmentRow {"VCenter", Qt::AlignVCenter, false, YGJustifyCenter, kNoAlign},
                    AlignmentRow {"Baseline", Qt::AlignBaseline, false, kNoJustify, kNoAlign}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    OtherValues, Alignment,
    testing::Values(
        AlignmentRow {"Justify", Qt::AlignJustify, true, kNoJustify, kNoAlign},
        AlignmentRow {"Combination", Qt::AlignLeft | Qt::AlignTop, true, kNoJustify, kNoAlign},
        AlignmentRow {"CombinationAcross", Qt::AlignCenter, false, kNoJustify, kNoAlign},
        AlignmentRow {"Zero", 0, true, kNoJustify, kNoAlign},
        AlignmentRow {"Negative", -1, false, kNoJustify, kNoAlign}),
    RowName());

using LayoutItem = PlixTest;

TEST_F(LayoutItem, StartsWithoutABorderAndIsTheContextOfItsNode)
{
    LayoutNode item;
    EXPECT_EQ(item.border(), 0);
    EXPECT_EQ(YGNodeGetContext(item.node()), static_cast<YogaLayoutItem*>(&item));
    EXPECT_FALSE(item.widthIsPercent());
    EXPECT_FALSE(item.hasPadding());
    EXPECT_FALSE(item.hasMargin());
    EXPECT_EQ(item.geometryTarget(), nullptr);
}

TEST_F(LayoutItem, HasTheDirectionOfItsDefaults)
{
    EXPECT_EQ(YogaLayoutItem(false).orientation(), Qt::Vertical);
    EXPECT_EQ(YogaLayoutItem(true).orientation(), Qt::Horizontal);
}

TEST_F(LayoutItem, AcceptsTheTwoOrientationsOnly)
{
    LayoutNode item;
    item.setOrientation(Qt::Horizontal);
    EXPECT_EQ(item.orientation(), Qt::Horizontal);
    EXPECT_EQ(YGNodeStyleGetFlexDirection(item.node()), YGFlexDirectionRow);
    item.setOrientation(static_cast<Qt::Orientation>(3));
    EXPECT_EQ(item.orientation(), Qt::Horizontal);
    item.setOrientation(Qt::Vertical);
    EXPECT_EQ(item.orientation(), Qt::Vertical);
    EXPECT_EQ(YGNodeStyleGetFlexDirection(item.node()), YGFlexDirectionColumn);
}

TEST_F(LayoutItem, ReportsAReversedRowAsVertical)
{
    LayoutNode item;
    YGNodeStyleSetFlexDirection(item.node(), YGFlexDirectionRowReverse);
    EXPECT_EQ(item.orientation(), Qt::Vertical);
}

TEST_F(LayoutItem, AcceptsTheTwoLayoutDirectionsOnly)
{
    LayoutNode item;
    EXPECT_EQ(item.layoutDirection(), Qt::LeftToRight);
    item.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(item.layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(YGNodeStyleGetDirection(item.node()), YGDirectionRTL);
    item.setLayoutDirection(Qt::LayoutDirectionAuto);
    EXPECT_EQ(item.layoutDirection(), Qt::RightToLeft);
    item.setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(YGNodeStyleGetDirection(item.node()), YGDirectionLTR);
}

TEST_F(LayoutItem, ReturnsItsMargins)
{
    LayoutNode item;
    EXPECT_EQ(item.marginTop(), 0);
    EXPECT_EQ(item.marginLeft(), 0);
    EXPECT_EQ(item.marginBottom(), 0);
    item.setMargins(1, 2, 3, 4);
    EXPECT_EQ(item.marginLeft(), 1);
    EXPECT_EQ(item.marginTop(), 2);
    EXPECT_EQ(item.marginBottom(), 4);
}

TEST_F(LayoutItem, IgnoresNegativePaddings)
{
    LayoutNode item;
    item.setPaddings(1, 2, 3, 4);
    item.setPaddings(-1, 14, -1, 14);
    EXPECT_EQ(item.paddingLeft(), 1);
    EXPECT_EQ(item.paddingTop(), 14);
    EXPECT_EQ(item.paddingRight(), 3);
    EXPECT_EQ(item.paddingBottom(), 14);

    LayoutNode fresh;
    fresh.setPaddings(-1, 4, -1, 4);
    EXPECT_EQ(YGNodeStyleGetPadding(fresh.node(), YGEdgeLeft).unit, YGUnitUndefined);
    EXPECT_EQ(YGNodeStyleGetPadding(fresh.node(), YGEdgeRight).unit, YGUnitUndefined);
}

TEST_F(LayoutItem, PrefersThePaddingOfAnEdgeToThatOfAllEdges)
{
    LayoutNode item;
    EXPECT_EQ(item.paddingLeft(), 0);
    item.setPadding(6);
    EXPECT_EQ(item.paddingLeft(), 6);
    EXPECT_EQ(item.paddingTop(), 6);
    EXPECT_EQ(item.paddingRight(), 6);
    EXPECT_EQ(item.paddingBottom(), 6);
    item.setPaddingBottom(2);
    EXPECT_EQ(item.paddingBottom(), 2);
    EXPECT_EQ(item.paddingTop(), 6);
}

TEST_F(LayoutItem, KnowsWhetherItHasAPaddingThatReplacesInsets)
{
    const auto hasPaddingAfter = [](const std::function<void(Item&)>& set) {
        LayoutNode item;
        set(item);
        return item.hasPadding();
    };
    EXPECT_TRUE(hasPaddingAfter([](Item& i) { i.setPadding(0); }));
    EXPECT_TRUE(hasPaddingAfter([](Item& i) { i.setPaddingBottom(3); }));
    EXPECT_FALSE(hasPaddingAfter([](Item& i) { i.setPaddings(1, 2, 3, 4); }));
    EXPECT_FALSE(hasPaddingAfter([](Item& i) { i.setPaddingPercent(5); }));
    EXPECT_FALSE(hasPaddingAfter([](Item& i) { i.setPaddingBottomPercent(5); }));
}

TEST_F(LayoutItem, ReportsTheStyleWidthWithItsUnit)
{
    LayoutNode item;
    YGUnit unit = YGUnitUndefined;
    item.setWidth(40);
    EXPECT_EQ(item.styleWidth(unit), 40);
    EXPECT_EQ(unit, YGUnitPoint);
    item.setWidthPercent(50);
    EXPECT_EQ(item.styleWidth(unit), 50);
    EXPECT_EQ(unit, YGUnitPercent);
    item.setWidthAuto();
    item.styleWidth(unit);
    EXPECT_EQ(unit, YGUnitAuto);
}

TEST_F(LayoutItem, ReplacesAHeightByAnAutomaticOne)
{
    LayoutNode item;
    item.setHeight(40);
    EXPECT_EQ(item.styleHeight(), 40);
    item.setHeightAuto();
    EXPECT_EQ(YGNodeStyleGetHeight(item.node()).unit, YGUnitAuto);
}

TEST_F(LayoutItem, SetsTheBorderOnAllEdges)
{
    LayoutNode item;
    item.setBorder(3);
    EXPECT_EQ(item.border(), 3);
    EXPECT_EQ(YGNodeStyleGetBorder(item.node(), YGEdgeAll), 3);
}

TEST_F(LayoutItem, TruncatesTheGrowFactor)
{
    LayoutNode item;
    EXPECT_EQ(item.growFactor(), 0);
    item.setGrowFactor(2.75);
    EXPECT_EQ(item.growFactor(), 2);
    EXPECT_FLOAT_EQ(YGNodeStyleGetFlexGrow(item.node()), 2.75F);
}

TEST_F(LayoutItem, TreatsAGrowFactorOfNanAsZero)
{
    LayoutNode item;
    item.setGrowFactor(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(item.growFactor(), 0);
}

TEST_F(LayoutItem, DoesNotGrowByANegativeFactor)
{
    LayoutNode row;
    LayoutNode negative;
    LayoutNode positive;
    row.setOrientation(Qt::Horizontal);
    row.addChild(&negative);
    row.addChild(&positive);
    negative.setGrowFactor(-1);
    positive.setGrowFactor(1);
    row.calculateLayout(100, 10);
    EXPECT_EQ(negative.layoutWidth(), 0);
    EXPECT_EQ(positive.layoutWidth(), 100);
    EXPECT_EQ(negative.growFactor(), 0);
}

TEST_F(LayoutItem, LimitsGrowFactors)
{
    LayoutNode item;
    item.setGrowFactor(kMaximumStyleNumber);
    EXPECT_EQ(item.growFactor(), 1'000'000);
    item.setGrowFactor(std::numeric_limits<int>::max());
    EXPECT_EQ(item.growFactor(), 1'000'000);
}

TEST_F(LayoutItem, BecomesATextNodeAndADefaultOneAgain)
{
    LayoutNode item;
    item.setTextNode(true);
    EXPECT_EQ(YGNodeGetNodeType(item.node()), YGNodeTypeText);
    item.setTextNode(false);
    EXPECT_EQ(YGNodeGetNodeType(item.node()), YGNodeTypeDefault);
}

TEST_F(LayoutItem, BecomesAbsoluteAndRelativeAgain)
{
    LayoutNode item;
    EXPECT_FALSE(item.isAbsolute());
    item.setAbsolute(true);
    EXPECT_TRUE(item.isAbsolute());
    item.setAbsolute(false);
    EXPECT_FALSE(item.isAbsolute());
    EXPECT_EQ(YGNodeStyleGetPositionType(item.node()), YGPositionTypeRelative);
}

TEST_F(LayoutItem, ReportsOffsetsOnlyWhenTheyWereSetInPixels)
{
    LayoutNode item;
    EXPECT_EQ(item.positionStart(), -1);
    EXPECT_EQ(item.positionEnd(), -1);
    EXPECT_EQ(item.positionTop(), -1);
    EXPECT_EQ(item.positionBottom(), -1);
    item.setPositionStart(1);
    item.setPositionEnd(2);
    item.setPositionTop(3);
    item.setPositionBottom(4);
    EXPECT_EQ(item.positionStart(), 1);
    EXPECT_EQ(item.positionEnd(), 2);
    EXPECT_EQ(item.positionTop(), 3);
    EXPECT_EQ(item.positionBottom(), 4);
}

TEST_F(LayoutItem, ReportsNoOffsetThatIsAPercentage)
{
    LayoutNode item;
    item.setPositionStartPercent(10);
    item.setPositionEndPercent(10);
    item.setPositionTopPercent(10);
    item.setPositionBottomPercent(10);
    EXPECT_EQ(item.positionStart(), -1);
    EXPECT_EQ(item.positionEnd(), -1);
    EXPECT_EQ(item.positionTop(), -1);
    EXPECT_EQ(item.positionBottom(), -1);
    item.setPositionTop(5);
    item.setPositionTopPercent(10);
    EXPECT_EQ(item.positionTop(), -1) << "the percentage replaces the pixels";
}

TEST_F(LayoutItem, KeepsItsFlags)
{
    LayoutNode item;
    item.setHasMargin(true);
    EXPECT_TRUE(item.hasMargin());
    item.setHasMargin(false);
    EXPECT_FALSE(item.hasMargin());
    item.setWidthIsPercent(true);
    EXPECT_TRUE(item.widthIsPercent());
}

TEST_F(LayoutItem, ResetsItsStyle)
{
    LayoutNode item;
    item.setWidth(40);
    item.setOrientation(Qt::Horizontal);
    item.reset();
    EXPECT_EQ(item.orientation(), Qt::Vertical);
    EXPECT_NE(YGNodeStyleGetWidth(item.node()).unit, YGUnitPoint);
}

TEST_F(LayoutItem, RefusesToResetWhileItIsAChildOrAParent)
{
    LayoutNode parent;
    LayoutNode child;
    parent.setWidth(40);
    child.setWidth(30);
    parent.addChild(&child);
    EXPECT_NO_THROW(parent.reset());
    EXPECT_NO_THROW(child.reset());
    EXPECT_EQ(parent.childAt(0), &child);
    EXPECT_EQ(YGNodeStyleGetWidth(parent.node()).value, 40);
    EXPECT_EQ(YGNodeStyleGetWidth(child.node()).value, 30);
}

TEST_F(LayoutItem, HighlightsNothing)
{
    LayoutNode item;
    EXPECT_EQ(item.setHighlightText({QStringLiteral("word")}), -1);
}

} // namespace
} // namespace plix::test
