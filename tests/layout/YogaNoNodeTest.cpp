// Items without a node: every operation does nothing or returns its default.
#include "support/LayoutNode.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <functional>
#include <ostream>

namespace plix::test {
namespace {

struct SetterRow {
    const char* name;
    std::function<void(YogaLayoutItem&)> call;

    friend std::ostream& operator<<(std::ostream& out, const SetterRow& row)
    {
        return out << row.name;
    }
};

class SetterWithoutNode : public PlixTest, public testing::WithParamInterface<SetterRow> { };

TEST_P(SetterWithoutNode, DoesNothing)
{
    LayoutNode item(nullptr);
    EXPECT_NO_THROW(GetParam().call(item));
    EXPECT_FALSE(item.hasPadding());
    EXPECT_EQ(item.childCount(), 0);
    EXPECT_EQ(item.positionStart(), -1);
    EXPECT_EQ(item.positionEnd(), -1);
    EXPECT_EQ(item.positionTop(), -1);
    EXPECT_EQ(item.positionBottom(), -1);
}

using Item = YogaLayoutItem;

INSTANTIATE_TEST_SUITE_P(
    Operations, SetterWithoutNode,
    testing::Values(
        SetterRow {"Orientation", [](Item& i) { i.setOrientation(Qt::Horizontal); }},
        SetterRow {"Alignment", [](Item& i) { i.setAlignment(Qt::AlignLeft, true); }},
        SetterRow {"AlignmentOnBaseline", [](Item& i) { i.setAlignment(Qt::AlignBaseline, true); }},
        SetterRow {"LayoutDirection", [](Item& i) { i.setLayoutDirection(Qt::RightToLeft); }},
        SetterRow {"Margins", [](Item& i) { i.setMargins(1, 2, 3, 4); }},
        SetterRow {"Margin", [](Item& i) { i.setMargin(1); }},
        SetterRow {"MarginTop", [](Item& i) { i.setMarginTop(1); }},
        SetterRow {"MarginLeft", [](Item& i) { i.setMarginLeft(1); }},
        SetterRow {"MarginBottom", [](Item& i) { i.setMarginBottom(1); }},
        SetterRow {"Paddings", [](Item& i) { i.setPaddings(1, 2, 3, 4); }},
        SetterRow {"Padding", [](Item& i) { i.setPadding(1); }},
        SetterRow {"PaddingLeftPercent", [](Item& i) { i.setPaddingLeftPercent(1); }},
        SetterRow {"PaddingRightPercent", [](Item& i) { i.setPaddingRightPercent(1); }},
        SetterRow {"PaddingTopPercent", [](Item& i) { i.setPaddingTopPercent(1); }},
        SetterRow {"PaddingBottomPercent", [](Item& i) { i.setPaddingBottomPercent(1); }},
        SetterRow {"PaddingPercent", [](Item& i) { i.setPaddingPercent(1); }},
        SetterRow {"PaddingBottom", [](Item& i) { i.setPaddingBottom(1); }},
        SetterRow {"InsertChild",
                   [](Item& i) {
                       LayoutNode child;
                       i.insertChild(&child, 0);
                       EXPECT_EQ(YGNodeGetParent(child.node()), nullptr);
                   }},
        SetterRow {"AddChild",
                   [](Item& i) {
                       LayoutNode child;
                       i.addChild(&child);
                       EXPECT_EQ(YGNodeGetParent(child.node()), nullptr);
                   }},
        SetterRow {"AddNoChild", [](Item& i) { i.addChild(nullptr); }},
        SetterRow {"Width", [](Item& i) { i.setWidth(1); }},
        SetterRow {"WidthAuto", [](Item& i) { i.setWidthAuto(); }},
        SetterRow {"WidthPercent", [](Item& i) { i.setWidthPercent(1); }},
        SetterRow {"Height", [](Item& i) { i.setHeight(1); }},
        SetterRow {"HeightPercent", [](Item& i) { i.setHeightPercent(1); }},
        SetterRow {"HeightAuto", [](Item& i) { i.setHeightAuto(); }},
        SetterRow {"MaxWidthPercent", [](Item& i) { i.setMaxWidthPercent(1); }},
        SetterRow {"Border", [](Item& i) { i.setBorder(1); }},
        SetterRow {"GrowFactor", [](Item& i) { i.setGrowFactor(1); }},
        SetterRow {"Reset", [](Item& i) { i.reset(); }},
        SetterRow {"TextNode", [](Item& i) { i.setTextNode(true); }},
        SetterRow {"Absolute", [](Item& i) { i.setAbsolute(true); }},
        SetterRow {"ApplyPaddingToAbsoluteChildren",
                   [](Item& i) { i.applyPaddingToAbsoluteChildren(); }},
        SetterRow {"InsetInto",
                   [](Item& i) {
                       LayoutNode parent;
                       i.insetInto(parent);
                   }},
        SetterRow {"PositionStart", [](Item& i) { i.setPositionStart(1); }},
        SetterRow {"PositionEnd", [](Item& i) { i.setPositionEnd(1); }},
        SetterRow {"PositionTop", [](Item& i) { i.setPositionTop(1); }},
        SetterRow {"PositionBottom", [](Item& i) { i.setPositionBottom(1); }},
        SetterRow {"PositionStartPercent", [](Item& i) { i.setPositionStartPercent(1); }},
        SetterRow {"PositionEndPercent", [](Item& i) { i.setPositionEndPercent(1); }},
        SetterRow {"PositionTopPercent", [](Item& i) { i.setPositionTopPercent(1); }},
        SetterRow {"PositionBottomPercent", [](Item& i) { i.setPositionBottomPercent(1); }},
        SetterRow {"ApplyLayout", [](Item& i) { i.applyLayout(); }},
        SetterRow {"ApplyLayoutRecursive", [](Item& i) { i.applyLayoutRecursive(); }},
        SetterRow {"MarkDirty", [](Item& i) { i.markDirty(); }},
        SetterRow {"Clickable", [](Item& i) { i.setClickable(true); }},
        SetterRow {"InheritCornerRadius", [](Item& i) { i.inheritCornerRadius(1); }},
        SetterRow {"HasMeasureFunc", [](Item& i) { i.setHasMeasureFunc(true); }},
        SetterRow {"HasBaselineFunc", [](Item& i) { i.setHasBaselineFunc(true); }},
        SetterRow {"CalculateLayout", [](Item& i) { i.calculateLayout(10, 10); }},
        SetterRow {"CalculateLayoutUnbounded", [](Item& i) { i.calculateLayout(); }},
        SetterRow {"RelayoutInPlace", [](Item& i) { i.relayoutInPlace(); }}),
    RowName());

struct LengthRow {
    const char* name;
    std::function<double(const YogaLayoutItem&)> read;

    friend std::ostream& operator<<(std::ostream& out, const LengthRow& row)
    {
        return out << row.name;
    }
};

class LengthWithoutNode : public PlixTest, public testing::WithParamInterface<LengthRow> { };

TEST_P(LengthWithoutNode, IsMinusOne)
{
    const LayoutNode item(nullptr);
    EXPECT_EQ(GetParam().read(item), -1);
}

INSTANTIATE_TEST_SUITE_P(
    Getters, LengthWithoutNode,
    testing::Values(LengthRow {"MarginTop", [](const Item& i) { return i.marginTop(); }},
                    LengthRow {"MarginLeft", [](const Item& i) { return i.marginLeft(); }},
                    LengthRow {"MarginBottom", [](const Item& i) { return i.marginBottom(); }},
                    LengthRow {"PaddingLeft", [](const Item& i) { return i.paddingLeft(); }},
                    LengthRow {"PaddingTop", [](const Item& i) { return i.paddingTop(); }},
                    LengthRow {"PaddingRight", [](const Item& i) { return i.paddingRight(); }},
                    LengthRow {"PaddingBottom", [](const Item& i) { return i.paddingBottom(); }},
                    LengthRow {"StyleWidth",
                               [](const Item& i) {
                                   YGUnit unit = YGUnitUndefined;
                                   return i.styleWidth(unit);
                               }},
                    LengthRow {"LayoutWidth", [](const Item& i) { return i.layoutWidth(); }},
                    LengthRow {"StyleHeight", [](const Item& i) { return i.styleHeight(); }},
                    LengthRow {"LayoutHeight", [](const Item& i) { return i.layoutHeight(); }},
                    LengthRow {"Border", [](const Item& i) { return i.border(); }},
                    LengthRow {"GrowFactor", [](const Item& i) { return i.growFactor(); }},
                    LengthRow {"PositionStart", [](const Item& i) { return i.positionStart(); }},
                    LengthRow {"PositionEnd", [](const Item& i) { return i.positionEnd(); }},
                    LengthRow {"PositionTop", [](const Item& i) { return i.positionTop(); }},
                    LengthRow {"PositionBottom", [](const Item& i) { return i.positionBottom(); }}),
    RowName());

using ItemWithoutNode = PlixTest;

TEST_F(ItemWithoutNode, ReturnsTheOtherDefaults)
{
    LayoutNode item(nullptr);
    EXPECT_EQ(item.orientation(), Qt::Vertical);
    EXPECT_EQ(item.layoutDirection(), Qt::LeftToRight);
    EXPECT_FALSE(item.isAbsolute());
    EXPECT_EQ(item.childCount(), 0);
    EXPECT_EQ(item.childAt(0), nullptr);
    EXPECT_EQ(item.parentItem(), nullptr);
    EXPECT_EQ(item.geometry(), QRectF());
    EXPECT_EQ(item.setHighlightText({QStringLiteral("word")}), -1);
}

TEST_F(ItemWithoutNode, UsesTheConstraintsWhenMeasured)
{
    LayoutNode item(nullptr);
    EXPECT_EQ(item.measure(30, YGMeasureModeExactly, 40, YGMeasureModeAtMost), QSizeF(30, 40));
    EXPECT_EQ(item.baseline(30, 40), 40);
}

TEST_F(ItemWithoutNode, IsNotAddedAsAChild)
{
    LayoutNode parent;
    LayoutNode child(nullptr);
    parent.insertChild(&child, 0);
    EXPECT_EQ(parent.childCount(), 0);
}

} // namespace
} // namespace plix::test
