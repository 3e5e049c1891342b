// No number that goes to Yoga or Qt is out of range.
#include "layout/PlixLimits.h"
#include "layout/PlixStyleNumber.h"
#include "layout/PlixStyleValues.h"
#include "support/LayoutNode.h"
#include "support/PlixTest.h"

#include <QGraphicsWidget>

#include <cmath>
#include <limits>
#include <ostream>

namespace plix::test {
namespace {

constexpr double kMaximum = kMaximumStyleNumber;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(StyleNumber, IsLimited)
{
    for (const double sign : {1.0, -1.0}) {
        for (const double number : {0.0, 0.5, 12.0, kMaximum - 1, kMaximum})
            EXPECT_EQ(ToStyleNumber(sign * number), static_cast<float>(sign * number));
        for (const double number : {kMaximum + 1, 2147483647.0, 2147483648.0, 1e300, kInfinity})
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
struct SetterRow {
    const char* name;
    void (*set)(Item& item, double number);
    float (*read)(YGNodeConstRef node);

    friend std::ostream& operator<<(std::ostream& out, const SetterRow& row)
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

class NumberSetter : public PlixTest, public testing::WithParamInterface<SetterRow> { };

TEST_P(NumberSetter, SetsALimitedNumber)
{
    for (const double number : {kMaximum - 1, kMaximum, kMaximum + 1, 2147483647.0, kInfinity}) {
        LayoutNode item;
        GetParam().set(item, number);
        EXPECT_EQ(GetParam().read(item.node()), ToStyleNumber(number)) << number;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Setters, NumberSetter,
    testing::Values(
        SetterRow {"MarginsLeft", [](Item& i, double n) { i.setMargins(n, 0, 0, 0); },
                   &margin<YGEdgeLeft>},
        SetterRow {"MarginsTop", [](Item& i, double n) { i.setMargins(0, n, 0, 0); },
                   &margin<YGEdgeTop>},
        SetterRow {"MarginsRight", [](Item& i, double n) { i.setMargins(0, 0, n, 0); },
                   &margin<YGEdgeRight>},
        SetterRow {"MarginsBottom", [](Item& i, double n) { i.setMargins(0, 0, 0, n); },
                   &margin<YGEdgeBottom>},
        SetterRow {"Margin", [](Item& i, double n) { i.setMargin(n); }, &margin<YGEdgeAll>},
        SetterRow {"MarginTop", [](Item& i, double n) { i.setMarginTop(n); }, &margin<YGEdgeTop>},
        SetterRow {"MarginLeft", [](Item& i, double n) { i.setMarginLeft(n); },
                   &margin<YGEdgeLeft>},
        SetterRow {"MarginBottom", [](Item& i, double n) { i.setMarginBottom(n); },
                   &margin<YGEdgeBottom>},
        SetterRow {"PaddingsLeft", [](Item& i, double n) { i.setPaddings(n, 0, 0, 0); },
                   &padding<YGEdgeLeft>},
        SetterRow {"PaddingsTop", [](Item& i, double n) { i.setPaddings(0, n, 0, 0); },
                   &padding<YGEdgeTop>},
        SetterRow {"PaddingsRight", [](Item& i, double n) { i.setPaddings(0, 0, n, 0); },
                   &padding<YGEdgeRight>},
        SetterRow {"PaddingsBottom", [](Item& i, double n) { i.setPaddings(0, 0, 0, n); },
                   &padding<YGEdgeBottom>},
        SetterRow {"Padding", [](Item& i, double n) { i.setPadding(n); }, &padding<YGEdgeAll>},
        SetterRow {"PaddingBottom", [](Item& i, double n) { i.setPaddingBottom(n); },
                   &padding<YGEdgeBottom>},
        SetterRow {"PaddingLeftPercent", [](Item& i, double n) { i.setPaddingLeftPercent(n); },
                   &padding<YGEdgeLeft>},
        SetterRow {"PaddingRightPercent", [](Item& i, double n) { i.setPaddingRightPercent(n); },
                   &padding<YGEdgeRight>},
        SetterRow {"PaddingTopPercent", [](Item& i, double n) { i.setPaddingTopPercent(n); },
                   &padding<YGEdgeTop>},
        SetterRow {"PaddingBottomPercent", [](Item& i, double n) { i.setPaddingBottomPercent(n); },
                   &padding<YGEdgeBottom>},
        SetterRow {"PaddingPercent", [](Item& i, double n) { i.setPaddingPercent(n); },
                   &padding<YGEdgeAll>}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    SizeSetters, NumberSetter,
    testing::Values(
        SetterRow {"Width", [](Item& i, double n) { i.setWidth(n); }, &width},
        SetterRow {"WidthPercent", [](Item& i, double n) { i.setWidthPercent(n); }, &width},
        SetterRow {"WidthOfAPass", [](Item& i, double n) { i.changeWidth(n); }, &width},
        SetterRow {"Height", [](Item& i, double n) { i.setHeight(n); }, &height},
        SetterRow {"HeightPercent", [](Item& i, double n) { i.setHeightPercent(n); }, &height},
        SetterRow {"MaxWidthPercent", [](Item& i, double n) { i.setMaxWidthPercent(n); },
                   [](YGNodeConstRef node) { return YGNodeStyleGetMaxWidth(node).value; }},
        SetterRow {"Border", [](Item& i, double n) { i.setBorder(n); },
                   [](YGNodeConstRef node) { return YGNodeStyleGetBorder(node, YGEdgeAll); }},
        SetterRow {"GrowFactor", [](Item& i, double n) { i.setGrowFactor(n); },
                   &YGNodeStyleGetFlexGrow},
        SetterRow {"ShrinkFactor", [](Item& i, double n) { i.setShrinkFactor(n); },
                   &YGNodeStyleGetFlexShrink},
        SetterRow {"AspectRatio", [](Item& i, double n) { i.setAspectRatio(n); },
                   &YGNodeStyleGetAspectRatio},
        SetterRow {"PositionStart", [](Item& i, double n) { i.setPositionStart(n); },
                   &position<YGEdgeStart>},
        SetterRow {"PositionEnd", [](Item& i, double n) { i.setPositionEnd(n); },
                   &position<YGEdgeEnd>},
        SetterRow {"PositionTop", [](Item& i, double n) { i.setPositionTop(n); },
                   &position<YGEdgeTop>},
        SetterRow {"PositionBottom", [](Item& i, double n) { i.setPositionBottom(n); },
                   &position<YGEdgeBottom>},
        SetterRow {"PositionStartPercent", [](Item& i, double n) { i.setPositionStartPercent(n); },
                   &position<YGEdgeLeft>},
        SetterRow {"PositionEndPercent", [](Item& i, double n) { i.setPositionEndPercent(n); },
                   &position<YGEdgeEnd>},
        SetterRow {"PositionTopPercent", [](Item& i, double n) { i.setPositionTopPercent(n); },
                   &position<YGEdgeTop>},
        SetterRow {"PositionBottomPercent",
                   [](Item& i, double n) { i.setPositionBottomPercent(n); },
                   &position<YGEdgeBottom>}),
    [](const auto& row) { return std::string(row.param.name); });

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
