#include "FuzzInput.h"
#include "FuzzTargets.h"

#include "layout/PlixStyleValues.h"
#include "layout/YogaLayoutItem.h"

#include <array>
#include <memory>

namespace plix::test {
namespace {

using Setter = void (*)(YogaLayoutItem&, double);

template <void (YogaLayoutItem::*Function)(double)>
void callSetter(YogaLayoutItem& item, double value)
{
    (item.*Function)(value);
}

constexpr std::array kSetters {
    Setter(&callSetter<&YogaLayoutItem::setMargin>),
    Setter(&callSetter<&YogaLayoutItem::setMarginTop>),
    Setter(&callSetter<&YogaLayoutItem::setMarginLeft>),
    Setter(&callSetter<&YogaLayoutItem::setMarginBottom>),
    Setter(&callSetter<&YogaLayoutItem::setPadding>),
    Setter(&callSetter<&YogaLayoutItem::setPaddingBottom>),
    Setter(&callSetter<&YogaLayoutItem::setPaddingPercent>),
    Setter(&callSetter<&YogaLayoutItem::setPaddingLeftPercent>),
    Setter(&callSetter<&YogaLayoutItem::setPaddingRightPercent>),
    Setter(&callSetter<&YogaLayoutItem::setPaddingTopPercent>),
    Setter(&callSetter<&YogaLayoutItem::setPaddingBottomPercent>),
    Setter(&callSetter<&YogaLayoutItem::setWidth>),
    Setter(&callSetter<&YogaLayoutItem::setWidthPercent>),
    Setter(&callSetter<&YogaLayoutItem::setHeight>),
    Setter(&callSetter<&YogaLayoutItem::setHeightPercent>),
    Setter(&callSetter<&YogaLayoutItem::setBorder>),
    Setter(&callSetter<&YogaLayoutItem::setGrowFactor>),
    Setter(&callSetter<&YogaLayoutItem::setShrinkFactor>),
    Setter(&callSetter<&YogaLayoutItem::setAspectRatio>),
    Setter(&callSetter<&YogaLayoutItem::setMaxWidthPercent>),
    Setter(&callSetter<&YogaLayoutItem::setPositionStart>),
    Setter(&callSetter<&YogaLayoutItem::setPositionEnd>),
    Setter(&callSetter<&YogaLayoutItem::setPositionTop>),
    Setter(&callSetter<&YogaLayoutItem::setPositionBottom>),
    Setter(&callSetter<&YogaLayoutItem::setPositionStartPercent>),
    Setter(&callSetter<&YogaLayoutItem::setPositionEndPercent>),
    Setter(&callSetter<&YogaLayoutItem::setPositionTopPercent>),
    Setter(&callSetter<&YogaLayoutItem::setPositionBottomPercent>),
    Setter(&callSetter<&YogaLayoutItem::changeWidth>),
    Setter(&callSetter<&YogaLayoutItem::changeWidthOnRelayout>),
    Setter([](YogaLayoutItem& item, double value) { item.setMargins(value, 1, -value, value); }),
    Setter([](YogaLayoutItem& item, double value) { item.setPaddings(value, 1, -value, value); }),
    Setter([](YogaLayoutItem& item, double) { item.setWidthAuto(); }),
    Setter([](YogaLayoutItem& item, double) { item.setHeightAuto(); }),
    Setter([](YogaLayoutItem& item, double value) { item.setAbsolute(value > 0); }),
    Setter([](YogaLayoutItem& item, double value) { item.setTextNode(value > 0); }),
    Setter([](YogaLayoutItem& item, double value) { item.setHasMeasureFunc(value > 0); }),
    Setter([](YogaLayoutItem& item, double value) { item.setHasBaselineFunc(value > 0); }),
    Setter([](YogaLayoutItem& item, double) { item.markDirty(); }),
    Setter([](YogaLayoutItem& item, double) { item.startOver(); }),
    Setter([](YogaLayoutItem& item, double) { item.applyPaddingToAbsoluteChildren(); }),
    Setter([](YogaLayoutItem& item, double value) {
        item.setOrientation(value > 0 ? Qt::Horizontal : Qt::Vertical);
    }),
    Setter([](YogaLayoutItem& item, double value) {
        item.setLayoutDirection(value > 0 ? Qt::RightToLeft : Qt::LeftToRight);
    }),
};

constexpr std::array kAlignments {Qt::AlignLeft,   Qt::AlignRight,   Qt::AlignHCenter, Qt::AlignTop,
                                  Qt::AlignBottom, Qt::AlignVCenter, Qt::AlignBaseline};

void convertWords(const std::string& text)
{
    ToLengthPixels(text);
    ToPercent(text);
    PlixLength length;
    ParseLength(text, length);
    ToSpacingPixels(text);
    ToCornerRadius(text);
    ToBorderWidth(text);
    ToSpacerPixels(text);
    ToImageSize(text);
    ToAspectRatio(text);
    ToColor(text);
    ToColor(RgbaToArgb(text));
}

// A root with nodes below it. Any of them may be missing.
using Nodes = std::array<std::unique_ptr<YogaLayoutItem>, 6>;

void useNode(Nodes& nodes, FuzzInput& input)
{
    const auto pick = [&]() -> std::unique_ptr<YogaLayoutItem>& {
        return nodes[static_cast<std::size_t>(input.below(static_cast<int>(nodes.size())))];
    };
    auto& node = pick();
    switch (input.below(16)) {
    case 0:
        node = std::make_unique<YogaLayoutItem>(input.flip());
        break;
    case 1:
        if (node)
            node->insertChild(pick().get(), input.below(4));
        break;
    case 2:
        if (node) {
            node->calculateLayout(input.number(), input.number());
            node->applyLayoutRecursive();
        }
        break;
    case 3:
        if (node)
            node->setAlignment(
                kAlignments[static_cast<std::size_t>(input.below(kAlignments.size()))],
                input.flip());
        break;
    default:
        if (node)
            kSetters[static_cast<std::size_t>(input.below(kSetters.size()))](*node, input.number());
    }
}

} // namespace

void fuzzStyle(std::string_view bytes)
{
    FuzzInput input(bytes);
    convertWords(input.line());
    Nodes nodes;
    for (auto& node : nodes)
        node = std::make_unique<YogaLayoutItem>(false);
    for (std::size_t i = 1; i < nodes.size(); ++i)
        nodes[i / 2]->insertChild(nodes[i].get(), 0);
    constexpr int kMaximumSteps = 200;
    for (int i = 0; i < kMaximumSteps && !input.isEmpty(); ++i)
        useNode(nodes, input);
    if (nodes[0]) {
        nodes[0]->calculateLayout(input.number(), input.number());
        nodes[0]->applyLayoutRecursive();
    }
}

} // namespace plix::test
