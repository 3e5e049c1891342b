#include "layout/YogaLayoutItem.h"

#include "api/PlixCatchExceptions.h"
#include "api/PlixLog.h"
#include "layout/PlixStyleNumber.h"

#include <QGraphicsLayoutItem>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

int Silence(YGConfigConstRef, YGNodeConstRef, YGLogLevel, const char*, va_list)
{
    return 0;
}

// Silent, because Yoga logs what it is about to throw, and the catch reports it.
// Not Yoga's default configuration, because the host may use Yoga, too. Never
// freed, because nodes may outlive static objects.
YGConfigRef MakeQuietConfig(bool useWebDefaults)
{
    YGConfigRef config = YGConfigNew();
    YGConfigSetUseWebDefaults(config, useWebDefaults);
    YGConfigSetLogger(config, &Silence);
    return config;
}

YGNodeRef MakeNode(bool useWebDefaults)
{
    static YGConfigRef webConfig = MakeQuietConfig(true);
    static YGConfigRef config = MakeQuietConfig(false);
    return YGNodeNewWithConfig(useWebDefaults ? webConfig : config);
}

// How many boxes inside each other are laid out again in one pass. It limits how
// often a pass calculates an item.
constexpr int kMaxNestedRelayouts = 4;

// False for NaN.
bool IsPositive(float value)
{
    return value > 0;
}

float AtLeastOne(double value)
{
    const float number = plix::ToStyleNumber(value);
    return IsPositive(number) ? number : 1.0F;
}

// Set a node's width or height in each unit.
struct DimensionSetters {
    void (*setPoints)(YGNodeRef, float);
    void (*setPercent)(YGNodeRef, float);
    void (*setAuto)(YGNodeRef);
};

constexpr DimensionSetters kWidth = {&YGNodeStyleSetWidth, &YGNodeStyleSetWidthPercent,
                                     &YGNodeStyleSetWidthAuto};
constexpr DimensionSetters kHeight = {&YGNodeStyleSetHeight, &YGNodeStyleSetHeightPercent,
                                      &YGNodeStyleSetHeightAuto};

void Restore(const DimensionSetters& dimension, YGNodeRef node, const YGValue& value)
{
    if (value.unit == YGUnitPoint)
        dimension.setPoints(node, value.value);
    else if (value.unit == YGUnitPercent)
        dimension.setPercent(node, value.value);
    else
        dimension.setAuto(node);
}

} // namespace

template <typename Visit> void YogaLayoutItem::forEachChild(Visit visit) const
{
    for (int i = 0; i < childCount(); ++i) {
        if (YogaLayoutItem* child = childAt(i))
            visit(*child);
    }
}

YogaLayoutItem::YogaLayoutItem(bool useWebDefaults)
    : YogaLayoutItem(MakeNode(useWebDefaults))
{
}

YogaLayoutItem::YogaLayoutItem(YGNodeRef node)
    : linkTarget_(this)
    , node_(node)
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
    if (YogaLayoutItem* parent = parentItem())
        parent->hasChanged_ = true;
    YGNodeFree(node_);
}

YogaLayoutItem* YogaLayoutItem::ItemOf(YGNodeConstRef node)
{
    auto* const item = node ? static_cast<YogaLayoutItem*>(YGNodeGetContext(node)) : nullptr;
    return item && item->isChild_ ? item : nullptr;
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
    child->isChild_ = true;
    hasChanged_ = true;
}

void YogaLayoutItem::insertChild(YogaLayoutItem* child, int index)
{
    plix::CatchExceptions([&] { insertNode(child, index); });
}

void YogaLayoutItem::addChild(YogaLayoutItem* child)
{
    if (!node_)
        return;
    // The hyphen has always been part of this line; hosts match on it.
    plix::CatchExceptions([&] { insertNode(child, childCount()); },
                          [](const char* reason) {
                              plix::LogFailureLine("call YogaLayoutItem::AddChild failed.- ",
                                                   reason);
                          });
}

float YogaLayoutItem::layoutWidth() const
{
    return node_ ? plix::ToStyleNumber(YGNodeLayoutGetWidth(node_)) : kNoNode;
}

float YogaLayoutItem::layoutHeight() const
{
    return node_ ? plix::ToStyleNumber(YGNodeLayoutGetHeight(node_)) : kNoNode;
}

QSizeF YogaLayoutItem::measure(double width, YGMeasureMode, double height, YGMeasureMode)
{
    return {width, height};
}

float YogaLayoutItem::baseline(double, double height)
{
    return static_cast<float>(height);
}

void YogaLayoutItem::reset()
{
    if (!startChange())
        return;
    plix::CatchExceptions([this] { YGNodeReset(node_); });
    YGNodeSetContext(node_, this);
}

void YogaLayoutItem::applyPaddingToAbsoluteChildren()
{
    forEachChild([this](YogaLayoutItem& child) { child.insetInto(*this); });
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
    const bool isComputed =
        !std::isnan(rect.right()) && !std::isnan(rect.bottom()); // NaN if one of its numbers is
    if (geometryTarget_ && isComputed)
        geometryTarget_->setGeometry(rect);
}

void YogaLayoutItem::markDirty()
{
    if (startChange() && YGNodeHasMeasureFunc(node_))
        plix::CatchExceptions([this] { YGNodeMarkDirty(node_); });
}

void YogaLayoutItem::setClickable(bool) { }

void YogaLayoutItem::inheritCornerRadius(int) { }

void YogaLayoutItem::setHasMeasureFunc(bool has)
{
    if (startChange())
        plix::CatchExceptions(
            [&] { YGNodeSetMeasureFunc(node_, has ? &MeasureCallback : nullptr); });
}

void YogaLayoutItem::setHasBaselineFunc(bool has)
{
    if (startChange())
        YGNodeSetBaselineFunc(node_, has ? &BaselineCallback : nullptr);
}

YGSize YogaLayoutItem::MeasureCallback(YGNodeConstRef node, float width, YGMeasureMode widthMode,
                                       float height, YGMeasureMode heightMode)
{
    YogaLayoutItem* item = ItemOf(node);
    if (!item)
        return {width, height};
    QSizeF size(width, height);
    plix::CatchExceptions([&] { size = item->measure(width, widthMode, height, heightMode); });
    return {AtLeastOne(size.width()), AtLeastOne(size.height())};
}

float YogaLayoutItem::BaselineCallback(YGNodeConstRef node, float width, float height)
{
    YogaLayoutItem* item = ItemOf(node);
    float baseline = height;
    if (item)
        plix::CatchExceptions([&] { baseline = item->baseline(width, height); });
    return baseline;
}

void YogaLayoutItem::calculateLayout(double width, double height)
{
    if (!node_)
        return;
    startPass();
    calculateLayout(width, height, YGNodeStyleGetDirection(node_));
}

void YogaLayoutItem::calculateLayout()
{
    calculateLayout(YGUndefined, YGUndefined);
}

void YogaLayoutItem::calculateLayout(double width, double height, YGDirection direction)
{
    plix::CatchExceptions([&] {
        YGNodeCalculateLayout(node_, plix::ToStyleNumber(width), plix::ToStyleNumber(height),
                              direction);
    });
}

void YogaLayoutItem::startPass()
{
    if (pass_.styleWidth)
        Restore(kWidth, node_, *pass_.styleWidth);
    pass_ = {};
    forEachChild([](YogaLayoutItem& child) { child.startPass(); });
}

void YogaLayoutItem::forgetKeptPositions()
{
    pass_.keptPosition.reset();
    forEachChild([](YogaLayoutItem& child) { child.forgetKeptPositions(); });
}

bool YogaLayoutItem::startChange()
{
    hasChanged_ = true;
    return node_ != nullptr;
}

bool YogaLayoutItem::hasChanged() const
{
    bool changed = hasChanged_;
    forEachChild([&](const YogaLayoutItem& child) { changed = changed || child.hasChanged(); });
    return changed;
}

void YogaLayoutItem::forgetChanges()
{
    hasChanged_ = false;
    forEachChild([](YogaLayoutItem& child) { child.forgetChanges(); });
}

void YogaLayoutItem::startOver()
{
    isPlaced_ = false;
    markDirty();
    forEachChild([](YogaLayoutItem& child) { child.startOver(); });
}

void YogaLayoutItem::applyLayoutRecursive()
{
    place(Round::First);
}

void YogaLayoutItem::place(Round round)
{
    const PlixLink<YogaLayoutItem> self = watch();
    pass_.round = round;
    isPlaced_ = true;
    applyLayout();
    if (!self.get())
        return;
    if (hasChildWiderThanPending())
        relayoutInPlace();
    // No child has been placed yet, so none is out of date.
    if (pass_.round == Round::Outdated)
        pass_.round = Round::First;
    placeChildren(round);
    // Second rounds do not nest: nested, each level of a card would double the work
    // of the level below.
    if (self.get() && pass_.round == Round::Outdated) {
        pass_.round = Round::Second;
        placeChildren(Round::Second);
    }
    if (self.get())
        pass_.round = Round::First;
}

void YogaLayoutItem::placeChildren(Round round)
{
    std::vector<PlixLink<YogaLayoutItem>> children;
    children.reserve(static_cast<std::size_t>(childCount()));
    forEachChild([&](const YogaLayoutItem& child) { children.push_back(child.watch()); });
    // Placing a child may delete this item: use only `children` from here on.
    for (const PlixLink<YogaLayoutItem>& link : children) {
        if (YogaLayoutItem* child = link.get())
            child->place(round);
    }
}

void YogaLayoutItem::changeWidth(double width)
{
    if (!node_)
        return;
    if (!pass_.styleWidth)
        pass_.styleWidth = YGNodeStyleGetWidth(node_);
    YGNodeStyleSetWidth(node_, plix::ToStyleNumber(width));
    YogaLayoutItem* parent = parentItem();
    if (parent && isWiderThan(width))
        parent->setRelayoutPending();
}

void YogaLayoutItem::changeWidthOnRelayout(double width)
{
    pass_.pendingWidth = width;
}

// Yoga rounds rectangles outwards to whole pixels, by less than 1 on each side.
bool YogaLayoutItem::isWiderThan(double width) const
{
    return layoutWidth() - width >= 2;
}

bool YogaLayoutItem::isWiderThanPending() const
{
    return pass_.pendingWidth && isWiderThan(*pass_.pendingWidth);
}

bool YogaLayoutItem::hasChildWiderThanPending() const
{
    bool found = false;
    forEachChild([&](const YogaLayoutItem& child) { found = found || child.isWiderThanPending(); });
    return found;
}

void YogaLayoutItem::applyPendingWidth()
{
    if (isWiderThanPending())
        changeWidth(*pass_.pendingWidth);
    pass_.pendingWidth.reset();
}

void YogaLayoutItem::setRelayoutPending()
{
    if (pass_.round != Round::Second && pass_.relayout == Relayout::None)
        pass_.relayout = Relayout::Pending;
}

int YogaLayoutItem::relayoutsAbove() const
{
    int count = 0;
    for (const YogaLayoutItem* item = parentItem(); item; item = item->parentItem())
        count += item->pass_.relayout == Relayout::Done ? 1 : 0;
    return count;
}

void YogaLayoutItem::relayoutInPlace()
{
    if (isRelayoutPending())
        pass_.relayout = Relayout::None;
    const double width = layoutWidth();
    const double height = layoutHeight();
    if (pass_.round == Round::Second || !node_ || std::isnan(width) || std::isnan(height))
        return;
    pass_.relayout = Relayout::Done;
    if (relayoutsAbove() >= kMaxNestedRelayouts)
        return;

    forEachChild([](YogaLayoutItem& child) { child.applyPendingWidth(); });
    const QPointF position = geometry().topLeft();
    calculateAtSize(width, height);
    forgetKeptPositions();
    pass_.round = Round::Outdated;
    pass_.keptPosition = position;
}

// Yoga treats the node that it starts from as a root. So its size is fixed, because
// its margins and percentages must not apply a second time, and it gets the direction
// that it inherits. The style changes also leave the card dirty, so that its next
// layout puts this node back in its place.
void YogaLayoutItem::calculateAtSize(double width, double height)
{
    const YGValue styleWidth = YGNodeStyleGetWidth(node_);
    const YGValue styleHeight = YGNodeStyleGetHeight(node_);
    YGNodeStyleSetWidth(node_, plix::ToStyleNumber(width));
    YGNodeStyleSetHeight(node_, plix::ToStyleNumber(height));
    calculateLayout(width, height, YGNodeLayoutGetDirection(node_));
    Restore(kWidth, node_, styleWidth);
    Restore(kHeight, node_, styleHeight);
}

YogaLayoutItem* YogaLayoutItem::childAt(int index) const
{
    if (!node_ || index < 0)
        return nullptr;
    return ItemOf(YGNodeGetChild(node_, static_cast<std::size_t>(index)));
}

int YogaLayoutItem::childCount() const
{
    return node_ ? static_cast<int>(YGNodeGetChildCount(node_)) : 0;
}

YogaLayoutItem* YogaLayoutItem::parentItem() const
{
    return node_ ? ItemOf(YGNodeGetParent(node_)) : nullptr;
}

QRectF YogaLayoutItem::geometry() const
{
    if (!node_)
        return {};
    const QPointF computed(plix::ToStyleNumber(YGNodeLayoutGetLeft(node_)),
                           plix::ToStyleNumber(YGNodeLayoutGetTop(node_)));
    return {pass_.keptPosition.value_or(computed), QSizeF(layoutWidth(), layoutHeight())};
}

QMarginsF YogaLayoutItem::layoutPaddings() const
{
    if (!node_)
        return {};
    const auto padding = [this](YGEdge edge) {
        return plix::ToStyleNumber(YGNodeLayoutGetPadding(node_, edge));
    };
    return {padding(YGEdgeLeft), padding(YGEdgeTop), padding(YGEdgeRight), padding(YGEdgeBottom)};
}
