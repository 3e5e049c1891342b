#include "layout/YogaLayoutItem.h"

#include "api/PlixLog.h"
#include "layout/YogaNodeRegistry.h"

#include <QGraphicsLayoutItem>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

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

// NaN is not.
bool IsPositive(float value)
{
    return value > 0;
}

float AtLeastOne(double value)
{
    const auto narrowed = static_cast<float>(value);
    return IsPositive(narrowed) ? narrowed : 1.0F;
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

float YogaLayoutItem::layoutWidth() const
{
    return node_ ? YGNodeLayoutGetWidth(node_) : kNoNode;
}

float YogaLayoutItem::layoutHeight() const
{
    return node_ ? YGNodeLayoutGetHeight(node_) : kNoNode;
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

int YogaLayoutItem::setHighlightText(const QStringList&)
{
    return -1;
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
