#include "layout/YogaLayoutItem.h"

#include "api/PlixLog.h"
#include "layout/YogaNodeRegistry.h"

#include <QGraphicsLayoutItem>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace {

constexpr float kNoNode = -1;

int Silence(YGConfigConstRef, YGNodeConstRef, YGLogLevel, const char*, va_list)
{
    return 0;
}

// Yoga logs what it is about to throw; whoever catches that has told already.
void SilenceDefaultConfig()
{
    // Yoga's default configuration is a mutable object behind a const handle.
    static const bool done =
        (YGConfigSetLogger(const_cast<YGConfigRef>(YGConfigGetDefault()), &Silence), true);
    Q_UNUSED(done);
}

// One configuration for all root nodes: they are all alike, and nodes may
// outlive whoever would free it.
YGConfigConstRef WebConfig()
{
    static YGConfigRef config = [] {
        YGConfigRef made = YGConfigNew();
        YGConfigSetUseWebDefaults(made, true);
        YGConfigSetLogger(made, &Silence);
        return made;
    }();
    return config;
}

YGNodeRef MakeNode(bool useWebDefaults)
{
    SilenceDefaultConfig();
    return useWebDefaults ? YGNodeNewWithConfig(WebConfig()) : YGNodeNew();
}

// Runs what Yoga refuses by throwing.
template <typename Call> void Quietly(Call call) noexcept
{
    try {
        call();
    } catch (...) { // NOLINT(bugprone-empty-catch): refused, nothing changed
    }
}

float ToFloat(double value)
{
    return static_cast<float>(value);
}

bool IsPositive(float value)
{
    return value > 0;
} // NaN is not

float AtLeastOne(double value)
{
    return IsPositive(ToFloat(value)) ? ToFloat(value) : 1.0F;
}

// Whether some item is placing its children for the second time. Layout belongs
// to the GUI thread, and second rounds do not nest: nested, each level of a card
// would double the work of the level below.
bool settling = false;

// Puts a width or height style back as it was read.
void RestoreDimension(YGNodeRef node, const YGValue& value, void (*setPoints)(YGNodeRef, float),
                      void (*setPercent)(YGNodeRef, float), void (*setAuto)(YGNodeRef))
{
    if (value.unit == YGUnitPoint)
        setPoints(node, value.value);
    else if (value.unit == YGUnitPercent)
        setPercent(node, value.value);
    else
        setAuto(node);
}

} // namespace

YogaLayoutItem::YogaLayoutItem(bool useWebDefaults)
    : YogaLayoutItem(MakeNode(useWebDefaults))
{
}

YogaLayoutItem::YogaLayoutItem(YGNodeRef node)
    : node_(node)
{
    if (!node_)
        return;
    YGNodeSetContext(node_, this);
    YGNodeStyleSetBorder(node_, YGEdgeAll, 0);
}

YogaLayoutItem::~YogaLayoutItem()
{
    if (!node_)
        return;
    YogaNodeRegistry::GetInstance().Remove(node_);
    YGNodeFree(node_);
}

void YogaLayoutItem::setOrientation(Qt::Orientation orientation)
{
    if (!node_)
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
    if (!node_)
        return;
    struct Row {
        int flag;
        bool justifiesOnMainAxis;
        YGJustify justify;
        YGAlign align;
    };
    static constexpr Row rows[] = {
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
    for (const Row& row : rows) {
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
    if (!node_)
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
    if (!node_)
        return;
    YGNodeStyleSetMargin(node_, YGEdgeLeft, ToFloat(left));
    YGNodeStyleSetMargin(node_, YGEdgeTop, ToFloat(top));
    YGNodeStyleSetMargin(node_, YGEdgeRight, ToFloat(right));
    YGNodeStyleSetMargin(node_, YGEdgeBottom, ToFloat(bottom));
}

void YogaLayoutItem::setMargin(double all)
{
    if (node_)
        YGNodeStyleSetMargin(node_, YGEdgeAll, ToFloat(all));
}

void YogaLayoutItem::setMarginTop(double margin)
{
    if (node_)
        YGNodeStyleSetMargin(node_, YGEdgeTop, ToFloat(margin));
}

void YogaLayoutItem::setMarginLeft(double margin)
{
    if (node_)
        YGNodeStyleSetMargin(node_, YGEdgeLeft, ToFloat(margin));
}

void YogaLayoutItem::setMarginBottom(double margin)
{
    if (node_)
        YGNodeStyleSetMargin(node_, YGEdgeBottom, ToFloat(margin));
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
    if (!node_)
        return;
    const auto setEdge = [this](YGEdge edge, double value) {
        if (value >= 0)
            YGNodeStyleSetPadding(node_, edge, ToFloat(value));
    };
    setEdge(YGEdgeLeft, left);
    setEdge(YGEdgeTop, top);
    setEdge(YGEdgeRight, right);
    setEdge(YGEdgeBottom, bottom);
}

void YogaLayoutItem::setPadding(double all)
{
    if (!node_)
        return;
    YGNodeStyleSetPadding(node_, YGEdgeAll, ToFloat(all));
    hasPadding_ = true;
}

bool YogaLayoutItem::hasPadding() const
{
    return hasPadding_;
}

void YogaLayoutItem::setPaddingLeftPercent(double percent)
{
    if (node_)
        YGNodeStyleSetPaddingPercent(node_, YGEdgeLeft, ToFloat(percent));
}

void YogaLayoutItem::setPaddingRightPercent(double percent)
{
    if (node_)
        YGNodeStyleSetPaddingPercent(node_, YGEdgeRight, ToFloat(percent));
}

void YogaLayoutItem::setPaddingTopPercent(double percent)
{
    if (node_)
        YGNodeStyleSetPaddingPercent(node_, YGEdgeTop, ToFloat(percent));
}

void YogaLayoutItem::setPaddingBottomPercent(double percent)
{
    if (node_)
        YGNodeStyleSetPaddingPercent(node_, YGEdgeBottom, ToFloat(percent));
}

void YogaLayoutItem::setPaddingPercent(double percent)
{
    if (node_)
        YGNodeStyleSetPaddingPercent(node_, YGEdgeAll, ToFloat(percent));
}

void YogaLayoutItem::setPaddingBottom(double padding)
{
    if (!node_)
        return;
    YGNodeStyleSetPadding(node_, YGEdgeBottom, ToFloat(padding));
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

bool YogaLayoutItem::canInsert(const YogaLayoutItem* child) const
{
    if (!node_ || !child || !child->node_)
        return false;
    for (YGNodeRef ancestor = node_; ancestor; ancestor = YGNodeGetParent(ancestor)) {
        if (ancestor == child->node_)
            return false;
    }
    return true;
}

void YogaLayoutItem::insertNode(YogaLayoutItem* child, int index)
{
    if (!canInsert(child))
        throw std::invalid_argument("An item cannot be put into nothing or into itself.");
    const int place = std::clamp(index, 0, childCount());
    YGNodeInsertChild(node_, child->node_, static_cast<std::size_t>(place));
    YogaNodeRegistry::GetInstance().Add(child->node_, child);
}

void YogaLayoutItem::insertChild(YogaLayoutItem* child, int index)
{
    Quietly([&] { insertNode(child, index); });
}

void YogaLayoutItem::addChild(YogaLayoutItem* child)
{
    if (!node_)
        return;
    try {
        insertNode(child, childCount());
    } catch (const std::exception& error) {
        // The hyphen has always been part of this line; hosts match on it.
        LogFailureLine("call YogaLayoutItem::AddChild failed.- ", error);
    }
}

void YogaLayoutItem::setWidth(double width)
{
    if (node_)
        YGNodeStyleSetWidth(node_, ToFloat(width));
}

void YogaLayoutItem::setWidthAuto()
{
    if (node_)
        YGNodeStyleSetWidthAuto(node_);
}

void YogaLayoutItem::setWidthPercent(double percent)
{
    if (node_)
        YGNodeStyleSetWidthPercent(node_, ToFloat(percent));
}

void YogaLayoutItem::setHeight(double height)
{
    if (node_)
        YGNodeStyleSetHeight(node_, ToFloat(height));
}

void YogaLayoutItem::setHeightPercent(double percent)
{
    if (node_)
        YGNodeStyleSetHeightPercent(node_, ToFloat(percent));
}

void YogaLayoutItem::setHeightAuto()
{
    if (node_)
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

float YogaLayoutItem::layoutWidth() const
{
    return node_ ? YGNodeLayoutGetWidth(node_) : kNoNode;
}

float YogaLayoutItem::styleHeight() const
{
    return node_ ? YGNodeStyleGetHeight(node_).value : kNoNode;
}

float YogaLayoutItem::layoutHeight() const
{
    return node_ ? YGNodeLayoutGetHeight(node_) : kNoNode;
}

void YogaLayoutItem::setBorder(double width)
{
    if (node_)
        YGNodeStyleSetBorder(node_, YGEdgeAll, ToFloat(width));
}

float YogaLayoutItem::border() const
{
    return node_ ? YGNodeStyleGetBorder(node_, YGEdgeAll) : kNoNode;
}

void YogaLayoutItem::setGrowFactor(double factor)
{
    if (node_)
        YGNodeStyleSetFlexGrow(node_, ToFloat(factor));
}

int YogaLayoutItem::growFactor() const
{
    if (!node_)
        return -1;
    const double factor = YGNodeStyleGetFlexGrow(node_);
    if (std::isnan(factor))
        return 0;
    // As floats, the largest integers are rounded up to one too many.
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<double>(factor, Limits::min(), Limits::max()));
}

QSizeF YogaLayoutItem::measure(double width, YGMeasureMode, double height, YGMeasureMode)
{
    return {width, height};
}

float YogaLayoutItem::baseline(double, double height)
{
    return ToFloat(height);
}

void YogaLayoutItem::reset()
{
    if (node_)
        Quietly([this] { YGNodeReset(node_); });
}

void YogaLayoutItem::setTextNode(bool isText)
{
    if (node_)
        YGNodeSetNodeType(node_, isText ? YGNodeTypeText : YGNodeTypeDefault);
}

void YogaLayoutItem::setAbsolute(bool absolute)
{
    if (node_)
        YGNodeStyleSetPositionType(node_,
                                   absolute ? YGPositionTypeAbsolute : YGPositionTypeRelative);
}

bool YogaLayoutItem::isAbsolute() const
{
    return node_ && YGNodeStyleGetPositionType(node_) == YGPositionTypeAbsolute;
}

void YogaLayoutItem::applyPaddingToAbsoluteChildren()
{
    for (int i = 0; i < childCount(); ++i) {
        if (YogaLayoutItem* child = childAt(i))
            child->insetInto(*this);
    }
}

void YogaLayoutItem::insetInto(const YogaLayoutItem& parent)
{
    if (!isAbsolute())
        return;
    if (positionStart() < 0 && IsPositive(parent.paddingLeft()))
        setPositionStart(parent.paddingLeft());
    if (positionEnd() < 0 && IsPositive(parent.paddingRight()))
        setPositionEnd(parent.paddingRight());
    if (positionTop() < 0 && IsPositive(parent.paddingTop()))
        setPositionTop(parent.paddingTop());
    if (positionBottom() < 0 && IsPositive(parent.paddingBottom()))
        setPositionBottom(parent.paddingBottom());
}

void YogaLayoutItem::setPositionStart(double position)
{
    if (!node_)
        return;
    YGNodeStyleSetPosition(node_, YGEdgeStart, ToFloat(position));
    startSet_ = true;
}

void YogaLayoutItem::setPositionEnd(double position)
{
    if (!node_)
        return;
    YGNodeStyleSetPosition(node_, YGEdgeEnd, ToFloat(position));
    endSet_ = true;
}

void YogaLayoutItem::setPositionTop(double position)
{
    if (!node_)
        return;
    YGNodeStyleSetPosition(node_, YGEdgeTop, ToFloat(position));
    topSet_ = true;
}

void YogaLayoutItem::setPositionBottom(double position)
{
    if (!node_)
        return;
    YGNodeStyleSetPosition(node_, YGEdgeBottom, ToFloat(position));
    bottomSet_ = true;
}

void YogaLayoutItem::setPositionStartPercent(double percent)
{
    if (node_)
        YGNodeStyleSetPositionPercent(node_, YGEdgeLeft, ToFloat(percent));
}

void YogaLayoutItem::setPositionEndPercent(double percent)
{
    if (node_)
        YGNodeStyleSetPositionPercent(node_, YGEdgeEnd, ToFloat(percent));
}

void YogaLayoutItem::setPositionTopPercent(double percent)
{
    if (node_)
        YGNodeStyleSetPositionPercent(node_, YGEdgeTop, ToFloat(percent));
}

void YogaLayoutItem::setPositionBottomPercent(double percent)
{
    if (node_)
        YGNodeStyleSetPositionPercent(node_, YGEdgeBottom, ToFloat(percent));
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

int YogaLayoutItem::setHighlightText(const QStringList&)
{
    return -1;
}

void YogaLayoutItem::setHasMargin(bool has)
{
    hasMargin_ = has;
}

bool YogaLayoutItem::hasMargin() const
{
    return hasMargin_;
}

void YogaLayoutItem::applyLayout()
{
    const QRectF rect = geometry();
    if (geometryTarget_ && !std::isnan(rect.width()) && !std::isnan(rect.height()))
        geometryTarget_->setGeometry(rect);
}

void YogaLayoutItem::markDirty()
{
    if (node_ && YGNodeHasMeasureFunc(node_))
        Quietly([this] { YGNodeMarkDirty(node_); });
}

void YogaLayoutItem::setClickable(bool) { }

void YogaLayoutItem::inheritCornerRadius(int) { }

void YogaLayoutItem::setHasMeasureFunc(bool has)
{
    if (node_)
        Quietly([&] { YGNodeSetMeasureFunc(node_, has ? &MeasureCallback : nullptr); });
}

void YogaLayoutItem::setHasBaselineFunc(bool has)
{
    if (node_)
        YGNodeSetBaselineFunc(node_, has ? &BaselineCallback : nullptr);
}

void YogaLayoutItem::setMaxWidthPercent(double percent)
{
    if (node_)
        YGNodeStyleSetMaxWidthPercent(node_, ToFloat(percent));
}

YGSize YogaLayoutItem::MeasureCallback(YGNodeConstRef node, float width, YGMeasureMode widthMode,
                                       float height, YGMeasureMode heightMode)
{
    YogaLayoutItem* item = YogaNodeRegistry::GetInstance().Find(node);
    if (!item)
        return {width, height};
    QSizeF size(width, height);
    Quietly([&] { size = item->measure(width, widthMode, height, heightMode); });
    return {AtLeastOne(size.width()), AtLeastOne(size.height())};
}

float YogaLayoutItem::BaselineCallback(YGNodeConstRef node, float width, float height)
{
    YogaLayoutItem* item = YogaNodeRegistry::GetInstance().Find(node);
    float baseline = height;
    if (item)
        Quietly([&] { baseline = item->baseline(width, height); });
    return baseline;
}

void YogaLayoutItem::calculateLayout(double width, double height)
{
    if (node_)
        calculateLayout(width, height, YGNodeStyleGetDirection(node_));
}

void YogaLayoutItem::calculateLayout(double width, double height, YGDirection direction)
{
    Quietly([&] { YGNodeCalculateLayout(node_, ToFloat(width), ToFloat(height), direction); });
    forgetKeptPositions();
}

void YogaLayoutItem::forgetKeptPositions()
{
    keptPosition_.reset();
    for (int i = 0; i < childCount(); ++i) {
        if (YogaLayoutItem* child = childAt(i))
            child->forgetKeptPositions();
    }
}

void YogaLayoutItem::calculateLayout()
{
    calculateLayout(YGUndefined, YGUndefined);
}

void YogaLayoutItem::applyLayoutRecursive()
{
    applyLayout();
    applyChildrenLayout();
    if (!relaidOut_)
        return;
    // A child's placement has computed this subtree again, under those that
    // had been placed before it. They follow, once: what changes now waits for
    // the next layout of the card.
    settling = true;
    applyChildrenLayout();
    settling = false;
    relaidOut_ = false;
}

void YogaLayoutItem::applyChildrenLayout()
{
    for (int i = 0; i < childCount(); ++i) {
        if (YogaLayoutItem* child = childAt(i))
            child->applyLayoutRecursive();
    }
}

void YogaLayoutItem::changeWidthOnRelayout(double width)
{
    pendingWidth_ = width;
    if (YogaLayoutItem* parent = parentItem())
        parent->setRelayoutPending();
}

void YogaLayoutItem::takePendingWidth()
{
    if (pendingWidth_)
        setWidth(*pendingWidth_);
    pendingWidth_.reset();
}

void YogaLayoutItem::setRelayoutPending()
{
    if (!settling && !relaidOut_)
        relayoutPending_ = true;
}

void YogaLayoutItem::relayoutInPlace()
{
    relayoutPending_ = false;
    const double width = layoutWidth();
    const double height = layoutHeight();
    if (settling || !node_ || std::isnan(width) || std::isnan(height))
        return;

    for (int i = 0; i < childCount(); ++i) {
        if (YogaLayoutItem* child = childAt(i))
            child->takePendingWidth();
    }

    // Yoga computes from a node downwards as if it were a root: fix its size
    // so that neither its margins nor a percentage apply a second time, hand
    // down the direction that it inherits, and keep its position, which Yoga
    // resets. The style changes also leave the card dirty, so that its next
    // layout puts this node back in its place.
    const QPointF position = geometry().topLeft();
    const YGValue styleWidth = YGNodeStyleGetWidth(node_);
    const YGValue styleHeight = YGNodeStyleGetHeight(node_);
    setWidth(width);
    setHeight(height);
    calculateLayout(width, height, YGNodeLayoutGetDirection(node_));
    RestoreDimension(node_, styleWidth, &YGNodeStyleSetWidth, &YGNodeStyleSetWidthPercent,
                     &YGNodeStyleSetWidthAuto);
    RestoreDimension(node_, styleHeight, &YGNodeStyleSetHeight, &YGNodeStyleSetHeightPercent,
                     &YGNodeStyleSetHeightAuto);
    keptPosition_ = position;
    relayoutPending_ = false;
    relaidOut_ = true;
}

YogaLayoutItem* YogaLayoutItem::childAt(int index) const
{
    if (!node_ || index < 0)
        return nullptr;
    return YogaNodeRegistry::GetInstance().Find(
        YGNodeGetChild(node_, static_cast<std::size_t>(index)));
}

int YogaLayoutItem::childCount() const
{
    return node_ ? static_cast<int>(YGNodeGetChildCount(node_)) : 0;
}

YogaLayoutItem* YogaLayoutItem::parentItem() const
{
    return node_ ? YogaNodeRegistry::GetInstance().Find(YGNodeGetParent(node_)) : nullptr;
}

QRectF YogaLayoutItem::geometry() const
{
    if (!node_)
        return {};
    const QPointF computed(YGNodeLayoutGetLeft(node_), YGNodeLayoutGetTop(node_));
    return {keptPosition_.value_or(computed),
            QSizeF(YGNodeLayoutGetWidth(node_), YGNodeLayoutGetHeight(node_))};
}

QMarginsF YogaLayoutItem::layoutPaddings() const
{
    if (!node_)
        return {};
    return {YGNodeLayoutGetPadding(node_, YGEdgeLeft), YGNodeLayoutGetPadding(node_, YGEdgeTop),
            YGNodeLayoutGetPadding(node_, YGEdgeRight),
            YGNodeLayoutGetPadding(node_, YGEdgeBottom)};
}
