// The operations of YogaLayoutItem that set and read the style of its node.
#include "layout/PlixStyleNumber.h"
#include "layout/YogaLayoutItem.h"

#include <algorithm>
#include <cmath>

void YogaLayoutItem::setOrientation(Qt::Orientation orientation)
{
    if (!startChange())
        return;
    if (orientation == Qt::Vertical)
        YGNodeStyleSetFlexDirection(node_, YGFlexDirectionColumn);
    else if (orientation == Qt::Horizontal)
        YGNodeStyleSetFlexDirection(node_, YGFlexDirectionRow);
}

Qt::Orientation YogaLayoutItem::orientation() const
{
    const bool isRow = node_ && YGNodeStyleGetFlexDirection(node_) == YGFlexDirectionRow;
    return isRow ? Qt::Horizontal : Qt::Vertical;
}

void YogaLayoutItem::setAlignment(int qtAlignment, bool mainAxis)
{
    if (!startChange())
        return;
    struct Row {
        int flag;
        bool justifiesOnMainAxis;
        YGJustify justify;
        YGAlign align;
    };
    static constexpr Row kRows[] = {
        {Qt::AlignLeft, true, YGJustifyFlexStart, YGAlignFlexStart},
        {Qt::AlignRight, true, YGJustifyFlexEnd, YGAlignFlexEnd},
        {Qt::AlignHCenter, true, YGJustifyCenter, YGAlignCenter},
        {Qt::AlignTop, false, YGJustifyFlexStart, YGAlignFlexStart},
        {Qt::AlignBottom, false, YGJustifyFlexEnd, YGAlignFlexEnd},
        {Qt::AlignVCenter, false, YGJustifyCenter, YGAlignCenter},
    };
    if (qtAlignment == Qt::AlignBaseline) {
        if (mainAxis)
            YGNodeStyleSetAlignItems(node_, YGAlignBaseline);
        return;
    }
    for (const Row& row : kRows) {
        if (row.flag != qtAlignment)
            continue;
        if (mainAxis == row.justifiesOnMainAxis)
            YGNodeStyleSetJustifyContent(node_, row.justify);
        else
            YGNodeStyleSetAlignSelf(node_, row.align);
    }
}

void YogaLayoutItem::setLayoutDirection(Qt::LayoutDirection direction)
{
    if (!startChange())
        return;
    if (direction == Qt::LeftToRight)
        YGNodeStyleSetDirection(node_, YGDirectionLTR);
    else if (direction == Qt::RightToLeft)
        YGNodeStyleSetDirection(node_, YGDirectionRTL);
}

Qt::LayoutDirection YogaLayoutItem::layoutDirection() const
{
    const bool isRtl = node_ && YGNodeStyleGetDirection(node_) == YGDirectionRTL;
    return isRtl ? Qt::RightToLeft : Qt::LeftToRight;
}

void YogaLayoutItem::setMargins(double left, double top, double right, double bottom)
{
    if (!startChange())
        return;
    YGNodeStyleSetMargin(node_, YGEdgeLeft, plix::ToStyleNumber(left));
    YGNodeStyleSetMargin(node_, YGEdgeTop, plix::ToStyleNumber(top));
    YGNodeStyleSetMargin(node_, YGEdgeRight, plix::ToStyleNumber(right));
    YGNodeStyleSetMargin(node_, YGEdgeBottom, plix::ToStyleNumber(bottom));
}

void YogaLayoutItem::setMargin(double all)
{
    if (startChange())
        YGNodeStyleSetMargin(node_, YGEdgeAll, plix::ToStyleNumber(all));
}

void YogaLayoutItem::setMarginTop(double margin)
{
    if (startChange())
        YGNodeStyleSetMargin(node_, YGEdgeTop, plix::ToStyleNumber(margin));
}

void YogaLayoutItem::setMarginLeft(double margin)
{
    if (startChange())
        YGNodeStyleSetMargin(node_, YGEdgeLeft, plix::ToStyleNumber(margin));
}

void YogaLayoutItem::setMarginBottom(double margin)
{
    if (startChange())
        YGNodeStyleSetMargin(node_, YGEdgeBottom, plix::ToStyleNumber(margin));
}

float YogaLayoutItem::margin(YGEdge edge) const
{
    if (!node_)
        return kNoNode;
    const YGValue value = YGNodeStyleGetMargin(node_, edge);
    return value.unit == YGUnitUndefined ? 0 : value.value;
}

float YogaLayoutItem::marginTop() const
{
    return margin(YGEdgeTop);
}

float YogaLayoutItem::marginLeft() const
{
    return margin(YGEdgeLeft);
}

float YogaLayoutItem::marginBottom() const
{
    return margin(YGEdgeBottom);
}

void YogaLayoutItem::setPaddings(double left, double top, double right, double bottom)
{
    if (!startChange())
        return;
    const auto setEdge = [this](YGEdge edge, double value) {
        if (value >= 0)
            YGNodeStyleSetPadding(node_, edge, plix::ToStyleNumber(value));
    };
    setEdge(YGEdgeLeft, left);
    setEdge(YGEdgeTop, top);
    setEdge(YGEdgeRight, right);
    setEdge(YGEdgeBottom, bottom);
}

void YogaLayoutItem::setPadding(double all)
{
    if (!startChange())
        return;
    YGNodeStyleSetPadding(node_, YGEdgeAll, plix::ToStyleNumber(all));
    hasPadding_ = true;
}

bool YogaLayoutItem::hasPadding() const
{
    return hasPadding_;
}

void YogaLayoutItem::setPaddingLeftPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetPaddingPercent(node_, YGEdgeLeft, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setPaddingRightPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetPaddingPercent(node_, YGEdgeRight, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setPaddingTopPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetPaddingPercent(node_, YGEdgeTop, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setPaddingBottomPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetPaddingPercent(node_, YGEdgeBottom, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setPaddingPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetPaddingPercent(node_, YGEdgeAll, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setPaddingBottom(double padding)
{
    if (!startChange())
        return;
    YGNodeStyleSetPadding(node_, YGEdgeBottom, plix::ToStyleNumber(padding));
    hasPadding_ = true;
}

float YogaLayoutItem::padding(YGEdge edge) const
{
    if (!node_)
        return kNoNode;
    for (const YGEdge candidate : {edge, YGEdgeAll}) {
        const YGValue value = YGNodeStyleGetPadding(node_, candidate);
        if (value.unit != YGUnitUndefined)
            return value.value;
    }
    return 0;
}

float YogaLayoutItem::paddingBottom() const
{
    return padding(YGEdgeBottom);
}

float YogaLayoutItem::paddingTop() const
{
    return padding(YGEdgeTop);
}

float YogaLayoutItem::paddingLeft() const
{
    return padding(YGEdgeLeft);
}

float YogaLayoutItem::paddingRight() const
{
    return padding(YGEdgeRight);
}

void YogaLayoutItem::setWidth(double width)
{
    if (!startChange())
        return;
    pass_.styleWidth.reset();
    YGNodeStyleSetWidth(node_, plix::ToStyleNumber(width));
}

void YogaLayoutItem::setWidthAuto()
{
    if (!startChange())
        return;
    pass_.styleWidth.reset();
    YGNodeStyleSetWidthAuto(node_);
}

void YogaLayoutItem::setWidthPercent(double percent)
{
    if (!startChange())
        return;
    pass_.styleWidth.reset();
    YGNodeStyleSetWidthPercent(node_, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setHeight(double height)
{
    if (startChange())
        YGNodeStyleSetHeight(node_, plix::ToStyleNumber(height));
}

void YogaLayoutItem::setHeightPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetHeightPercent(node_, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setHeightAuto()
{
    if (startChange())
        YGNodeStyleSetHeightAuto(node_);
}

float YogaLayoutItem::styleWidth(YGUnit& unit) const
{
    if (!node_)
        return kNoNode;
    const YGValue width = YGNodeStyleGetWidth(node_);
    unit = width.unit;
    return width.value;
}

float YogaLayoutItem::styleHeight() const
{
    return node_ ? YGNodeStyleGetHeight(node_).value : kNoNode;
}

void YogaLayoutItem::setBorder(double width)
{
    if (startChange())
        YGNodeStyleSetBorder(node_, YGEdgeAll, plix::ToStyleNumber(width));
}

float YogaLayoutItem::border() const
{
    return node_ ? YGNodeStyleGetBorder(node_, YGEdgeAll) : kNoNode;
}

void YogaLayoutItem::setGrowFactor(double factor)
{
    if (startChange())
        YGNodeStyleSetFlexGrow(node_, std::max(plix::ToStyleNumber(factor), 0.0F));
}

int YogaLayoutItem::growFactor() const
{
    if (!node_)
        return -1;
    const float factor = YGNodeStyleGetFlexGrow(node_);
    return std::isnan(factor) ? 0 : static_cast<int>(factor);
}

void YogaLayoutItem::setTextNode(bool isText)
{
    if (startChange())
        YGNodeSetNodeType(node_, isText ? YGNodeTypeText : YGNodeTypeDefault);
}

void YogaLayoutItem::setAbsolute(bool absolute)
{
    if (startChange())
        YGNodeStyleSetPositionType(node_,
                                   absolute ? YGPositionTypeAbsolute : YGPositionTypeRelative);
}

bool YogaLayoutItem::isAbsolute() const
{
    return node_ && YGNodeStyleGetPositionType(node_) == YGPositionTypeAbsolute;
}

void YogaLayoutItem::setPositionStart(double position)
{
    if (!startChange())
        return;
    YGNodeStyleSetPosition(node_, YGEdgeStart, plix::ToStyleNumber(position));
    startSet_ = true;
}

void YogaLayoutItem::setPositionEnd(double position)
{
    if (!startChange())
        return;
    YGNodeStyleSetPosition(node_, YGEdgeEnd, plix::ToStyleNumber(position));
    endSet_ = true;
}

void YogaLayoutItem::setPositionTop(double position)
{
    if (!startChange())
        return;
    YGNodeStyleSetPosition(node_, YGEdgeTop, plix::ToStyleNumber(position));
    topSet_ = true;
}

void YogaLayoutItem::setPositionBottom(double position)
{
    if (!startChange())
        return;
    YGNodeStyleSetPosition(node_, YGEdgeBottom, plix::ToStyleNumber(position));
    bottomSet_ = true;
}

void YogaLayoutItem::setPositionStartPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetPositionPercent(node_, YGEdgeLeft, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setPositionEndPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetPositionPercent(node_, YGEdgeEnd, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setPositionTopPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetPositionPercent(node_, YGEdgeTop, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setPositionBottomPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetPositionPercent(node_, YGEdgeBottom, plix::ToStyleNumber(percent));
}

float YogaLayoutItem::position(YGEdge edge, bool isSet) const
{
    if (!node_ || !isSet)
        return -1;
    const YGValue value = YGNodeStyleGetPosition(node_, edge);
    return value.unit == YGUnitPoint ? value.value : -1;
}

float YogaLayoutItem::positionStart() const
{
    return position(YGEdgeStart, startSet_);
}

float YogaLayoutItem::positionEnd() const
{
    return position(YGEdgeEnd, endSet_);
}

float YogaLayoutItem::positionTop() const
{
    return position(YGEdgeTop, topSet_);
}

float YogaLayoutItem::positionBottom() const
{
    return position(YGEdgeBottom, bottomSet_);
}

void YogaLayoutItem::setHasMargin(bool has)
{
    hasMargin_ = has;
}

bool YogaLayoutItem::hasMargin() const
{
    return hasMargin_;
}

void YogaLayoutItem::setMaxWidthPercent(double percent)
{
    if (startChange())
        YGNodeStyleSetMaxWidthPercent(node_, plix::ToStyleNumber(percent));
}

void YogaLayoutItem::setShrinkFactor(double factor)
{
    if (startChange())
        YGNodeStyleSetFlexShrink(node_, plix::ToStyleNumber(factor));
}

void YogaLayoutItem::setAspectRatio(double ratio)
{
    if (startChange())
        YGNodeStyleSetAspectRatio(node_, plix::ToStyleNumber(ratio));
}
