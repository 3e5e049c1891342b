// No number that goes to Yoga or Qt is out of range.
#include "layout/PlixLimits.h"
#include "layout/PlixStyleNumber.h"
#include "layout/PlixStyleValues.h"
#include "support/LayoutNode.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <QGraphicsWidget>

#include <cmath>
#include <limits>
#include <ostream>

namespace plix::test {
namespace {

constexpr double kMaximum = kMaximumStyleNumber;
constexpr double kInfinite = std::numeric_limits<double>::infinity();

TEST(StyleNumber, IsLimited)
{
    for (const double sign : {1.0, -1.0}) {
        for (const double number : {0.0, 0.5, 12.0, kMaximum - 1, kMaximum})
            EXPECT_EQ(ToStyleNumber(sign * number), static_cast<float>(sign * number));
        for (const double number : {kMaximum + 1, 2147483647.0, 2147483648.0, 1e300, kInfinite})
            EXPECT_EQ(ToStyleNumber(sign * number), static_cast<float>(sign * kMaximum));
    }
    EXPECT_TRUE(std::isnan(ToStyleNumber(std::numeric_limits<double>::quiet_NaN())));
}

TEST(StyleNumber, IsWhatARatioAndItsInverseAre)
{
    EXPECT_EQ(ToAspectRatio("999999:1"), 999'999.0F);
    EXPECT_EQ(ToAspectRatio("1000000:1"), 1'000'000.0F);
    EXPECT_EQ(ToAspectRatio("1000001:1"), 1'000'000.0F);
    EXPECT_EQ(ToAspectRatio("1:1000000"), 1e-6F);
    EXPECT_EQ(ToAspectRatio("1:1000001"), 1e-6F);
    EXPECT_EQ(ToAspectRatio("1:1e30"), 1e-6F);
}

using Item = YogaLayoutItem;

// A setter, and the number that it has set.
struct NumberRow {
    const char* name;
    void (*set)(Item& item, double number);
    float (*read)(YGNodeConstRef node);

    friend std::ostream& operator<<(std::ostream& out, const NumberRow& row)
    {
        return out << row.name;
    }
};

template <YGEdge Edge> float margin(YGNodeConstRef node)
{
    return YGNodeStyleGetMargin(node, Edge).value;
}

template <YGEdge Edge> float padding(YGNodeConstRef node)
{
    return YGNodeStyleGetPadding(node, Edge).value;
}

template <YGEdge Edge> float position(YGNodeConstRef node)
{
    return YGNodeStyleGetPosition(node, Edge).value;
}

float width(YGNodeConstRef node)
{
    return YGNodeStyleGetWidth(node).value;
}

float height(YGNodeConstRef node)
{
    return YGNodeStyleGetHeight(node).value;
}

class NumberSetter : public PlixTest, public testing::WithParamInterface<NumberRow> { };

TEST_P(NumberSetter, SetsALimitedNumber)
{
    for (const double number : {kMaximum - 1, kMaximum, kMaximum + 1, 2147483647.0, kInfinite}) {
        LayoutNode item;
        GetParam().set(item, number);
        EXPECT_EQ(GetParam().read(item.node()), ToStyleNumber(number)) << number;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Setters, NumberSetter,
    testing::Values(
        NumberRow {"MarginsLeft", [](Item& i, double n) { i.setMargins(n, 0, 0, 0); },
                   &margin<YGEdgeLeft>},
        NumberRow {"MarginsTop", [](Item& i, double n) { i.setMargins(0, n, 0, 0); },
                   &margin<YGEdgeTop>},
        NumberRow {"MarginsRight", [](Item& i, double n) { i.setMargins(0, 0, n, 0); },
                   &margin<YGEdgeRight>},
        NumberRow {"MarginsBottom", [](Item& i, double n) { i.setMargins(0, 0, 0, n); },
                   &margin<YGEdgeBottom>},
        NumberRow {"Margin", [](Item& i, double n) { i.setMargin(n); }, &margin<YGEdgeAll>},
        NumberRow {"MarginTop", [](Item& i, double n) { i.setMarginTop(n); }, &margin<YGEdgeTop>},
        NumberRow {"MarginLeft", [](Item& i, double n) { i.setMarginLeft(n); },
                   &margin<YGEdgeLeft>},
        NumberRow {"MarginBottom", [](Item& i, double n) { i.setMarginBottom(n); },
                   &margin<YGEdgeBottom>},
        NumberRow {"PaddingsLeft", [](Item& i, double n) { i.setPaddings(n, 0, 0, 0); },
                   &padding<YGEdgeLeft>},
        NumberRow {"PaddingsTop", [](Item& i, double n) { i.setPaddings(0, n, 0, 0); },
                   &padding<YGEdgeTop>},
        NumberRow {"PaddingsRight", [](Item& i, double n) { i.setPaddings(0, 0, n, 0); },
                   &padding<YGEdgeRight>},
        NumberRow {"PaddingsBottom", [](Item& i, double n) { i.setPaddings(0, 0, 0, n); },
                   &padding<YGEdgeBottom>},
        NumberRow {"Padding", [](Item& i, double n) { i.setPadding(n); }, &padding<YGEdgeAll>},
        NumberRow {"PaddingBottom", [](Item& i, double n) { i.setPaddingBottom(n); },
                   &padding<YGEdgeBottom>},
        NumberRow {"PaddingLeftPercent", [](Item& i, double n) { i.setPaddingLeftPercent(n); },
                   &padding<YGEdgeLeft>},
        NumberRow {"PaddingRightPercent", [](Item& i, double n) { i.setPaddingRightPercent(n); },
                   &padding<YGEdgeRight>},
        NumberRow {"PaddingTopPercent", [](Item& i, double n) { i.setPaddingTopPercent(n); },
                   &padding<YGEdgeTop>},
        NumberRow {"PaddingBottomPercent", [](Item& i, double n) { i.setPaddingBottomPercent(n); },
                   &padding<YGEdgeBottom>},
        NumberRow {"PaddingPercent", [](Item& i, double n) { i.setPaddingPercent(n); },
                   &padding<YGEdgeAll>}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    SizeSetters, NumberSetter,
    testing::Values(
        NumberRow {"Width", [](Item& i, double n) { i.setWidth(n); }, &width},
        NumberRow {"WidthPercent", [](Item& i, double n) { i.setWidthPercent(n); }, &width},
        NumberRow {"WidthOfAPass", [](Item& i, double n) { i.changeWidth(n); }, &width},
        NumberRow {"Height", [](Item& i, double n) { i.setHeight(n); }, &height},
        NumberRow {"HeightPercent", [](Item& i, double n) { i.setHeightPercent(n); }, &height},
        NumberRow {"MaxWidthPercent", [](Item& i, double n) { i.setMaxWidthPercent(n); },
                   [](YGNodeConstRef node) { return YGNodeStyleGetMaxWidth(node).value; }},
        NumberRow {"Border", [](Item& i, double n) { i.setBorder(n); },
                   [](YGNodeConstRef node) { return YGNodeStyleGetBorder(node, YGEdgeAll); }},
        NumberRow {"GrowFactor", [](Item& i, double n) { i.setGrowFactor(n); },
                   &YGNodeStyleGetFlexGrow},
        NumberRow {"ShrinkFactor", [](Item& i, double n) { i.setShrinkFactor(n); },
                   &YGNodeStyleGetFlexShrink},
        NumberRow {"AspectRatio", [](Item& i, double n) { i.setAspectRatio(n); },
                   &YGNodeStyleGetAspectRatio},
        NumberRow {"PositionStart", [](Item& i, double n) { i.setPositionStart(n); },
                   &position<YGEdgeStart>},
        NumberRow {"PositionEnd", [](Item& i, double n) { i.setPositionEnd(n); },
                   &position<YGEdgeEnd>},
        NumberRow {"PositionTop", [](Item& i, double n) { i.setPositionTop(n); },
                   &position<YGEdgeTop>},
        NumberRow {"PositionBottom", [](Item& i, double n) { i.setPositionBottom(n); },
                   &position<YGEdgeBottom>},
        NumberRow {"PositionStartPercent", [](Item& i, double n) { i.setPositionStartPercent(n); },
                   &position<YGEdgeLeft>},
        NumberRow {"PositionEndPercent", [](Item& i, double n) { i.setPositionEndPercent(n); },
                   &position<YGEdgeEnd>},
        NumberRow {"PositionTopPercent", [](Item& i, double n) { i.setPositionTopPercent(n); },
                   &position<YGEdgeTop>},
        NumberRow {"PositionBottomPercent",
                   [](Item& i, double n) { i.setPositionBottomPercent(n); },
                   &position<YGEdgeBottom>}),
    RowName());

// ----- What Yoga makes of it

using ComputedNumber = PlixTest;

// Each percentage makes the item ten thousand times larger than the one around it.
TEST_F(ComputedNumber, IsLimitedInNestedItems)
{
    constexpr int kLevels = 24;
    std::vector<QGraphicsWidget> widgets(kLevels);
    std::vector<LayoutNode> nodes(kLevels);
    for (std::size_t i = 0; i < kLevels; ++i) {
        nodes[i].setGeometryTarget(&widgets[i]);
        nodes[i].setWidthPercent(kMaximum);
        nodes[i].setHeight(kMaximum);
        nodes[i].setPositionTop(kMaximum);
        nodes[i].setPaddingPercent(kMaximum);
        if (i > 0)
            nodes[i - 1].addChild(&nodes[i]);
    }
    nodes[0].calculateLayout(300, 500);
    nodes[0].applyLayoutRecursive();
    for (std::size_t i = 0; i < kLevels; ++i) {
        for (const double number : {widgets[i].x(), widgets[i].y(), widgets[i].size().width(),
                                    widgets[i].size().height(), nodes[i].layoutPaddings().left()})
            EXPECT_LE(std::abs(number), kMaximum) << "level " << i;
    }
}

TEST_F(ComputedNumber, IsNotGivenToQtIfThereIsNone)
{
    QGraphicsWidget widget;
    LayoutNode item;
    item.setGeometryTarget(&widget);
    widget.setGeometry(1, 2, 3, 4);
    item.applyLayout();
    EXPECT_EQ(widget.geometry(), QRectF(1, 2, 3, 4));
}

} // namespace
} // namespace plix::test
