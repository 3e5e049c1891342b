#include "YogaTree.h"

#include "Element.h"

namespace bench {
namespace {

float length(qreal value)
{
    return static_cast<float>(value);
}

YGSize measureText(YGNodeConstRef node, float, YGMeasureMode, float, YGMeasureMode)
{
    const auto* element = static_cast<const Element*>(YGNodeGetContext(node));
    return {length(element->rect.width()), length(element->rect.height())};
}

void setSize(YGNodeRef node, const QSizeF& size)
{
    YGNodeStyleSetWidth(node, length(size.width()));
    YGNodeStyleSetHeight(node, length(size.height()));
}

void setPaddings(YGNodeRef node, const QMarginsF& paddings)
{
    YGNodeStyleSetPadding(node, YGEdgeLeft, length(paddings.left()));
    YGNodeStyleSetPadding(node, YGEdgeTop, length(paddings.top()));
    YGNodeStyleSetPadding(node, YGEdgeRight, length(paddings.right()));
    YGNodeStyleSetPadding(node, YGEdgeBottom, length(paddings.bottom()));
}

// Only what is not at its default, as somebody would who writes it by hand.
void setPlace(YGNodeRef node, const Flow::Place& place)
{
    if (place.left != 0)
        YGNodeStyleSetMargin(node, YGEdgeLeft, length(place.left));
    if (place.top != 0)
        YGNodeStyleSetMargin(node, YGEdgeTop, length(place.top));
    if (!place.isStretched)
        YGNodeStyleSetAlignSelf(node, YGAlignFlexStart);
}

} // namespace

YogaTree::YogaTree(const Element& card)
    : card_(card)
    , root_(add(card))
{
}

YGNodeRef YogaTree::add(const Element& element)
{
    YGNodeRef node = YGNodeNew();
    nodes_.push_back(node);
    if (element.text) {
        YGNodeSetContext(node, const_cast<Element*>(&element));
        YGNodeSetMeasureFunc(node, &measureText);
        texts_.push_back(node);
    } else if (element.children.empty()) {
        setSize(node, element.rect.size());
    } else {
        addChildren(node, element);
    }
    return node;
}

void YogaTree::addChildren(YGNodeRef node, const Element& element)
{
    YGNodeStyleSetFlexDirection(node,
                                element.flow.isRow ? YGFlexDirectionRow : YGFlexDirectionColumn);
    setPaddings(node, element.flow.paddings);
    for (std::size_t i = 0; i < element.children.size(); ++i) {
        YGNodeRef child = add(element.children[i]);
        setPlace(child, element.flow.places[i]);
        YGNodeInsertChild(node, child, i);
    }
}

void YogaTree::calculateTwice()
{
    constexpr float firstHeight = 500;
    const float width = length(card_.rect.width());
    YGNodeCalculateLayout(root_.get(), width, firstHeight, YGDirectionLTR);
    YGNodeCalculateLayout(root_.get(), width, YGUndefined, YGDirectionLTR);
}

void YogaTree::forgetSizes()
{
    for (YGNodeRef text : texts_)
        YGNodeMarkDirty(text);
}

void YogaTree::calculate(qreal width)
{
    YGNodeCalculateLayout(root_.get(), length(width), YGUndefined, YGDirectionLTR);
}

QRectF YogaTree::rect(std::size_t index) const
{
    YGNodeConstRef node = nodes_[index];
    return QRectF(YGNodeLayoutGetLeft(node), YGNodeLayoutGetTop(node), YGNodeLayoutGetWidth(node),
                  YGNodeLayoutGetHeight(node));
}

} // namespace bench
