#pragma once

#include "model/PlixDataBox.h"
#include "model/format/PlixCommonKeys.h"

#include <array>

namespace plix {

template <auto Setter>
constexpr PlixJsonKey<PlixDataBox> PaddingKey(std::string_view name, std::string_view description)
{
    return StringKey<PlixDataBox, Setter>({.name = name,
                                           .rule = PlixValueRule::LengthOrPercent,
                                           .words = Words<kLengths>(),
                                           .description = description});
}

inline constexpr auto kBoxKeys = JoinKeys(
    std::to_array<PlixJsonKey<PlixDataBox>>({
        StringKey<PlixDataBox, &PlixDataBox::SetLayout>(
            {.name = "layout",
             .rule = PlixValueRule::Word,
             .words = Words<kBoxLayouts>(),
             .isRequired = true,
             .description = "How its items are placed."}),
        StringKey<PlixDataBox, &PlixDataBox::SetSpacing>(
            {.name = "spacing",
             .rule = PlixValueRule::Word,
             .words = Words<kLengths>(),
             .description = "The distance between its items. No number of pixels."}),
        StringKey<PlixDataBox, &PlixDataBox::SetBackgroundColor>(
            {.name = "backgroundColor",
             .rule = PlixValueRule::ColorAlphaLast,
             .description = "Its background. Without it, what is behind the box is visible."}),
        StringKey<PlixDataBox, &PlixDataBox::SetCornerRadius>(
            {.name = "cornerRadius",
             .rule = PlixValueRule::Length,
             .words = Words<kCornerRadii>(),
             .description = "The radius of its corners."}),
        StringKey<PlixDataBox, &PlixDataBox::SetWidth>(
            {.name = "width",
             .rule = PlixValueRule::LengthOrPercent,
             .words = Words<kLengths>(),
             .description = "Its width. A percentage is a share of the box around it."}),
        StringKey<PlixDataBox, &PlixDataBox::SetHeight>(
            {.name = "height",
             .rule = PlixValueRule::LengthOrPercent,
             .words = Words<kLengths>(),
             .description = "Its height. Without it, a box is as high as its content."}),
        StringKey<PlixDataBox, &PlixDataBox::SetBorderColor>(
            {.name = "borderColor",
             .rule = PlixValueRule::ColorAlphaLast,
             .description = "The colour of its border. Without it, there is no border."}),
        StringKey<PlixDataBox, &PlixDataBox::SetBorderWidth>(
            {.name = "borderWidth",
             .rule = PlixValueRule::Length,
             .words = Words<kBorderWidths>(),
             .description = "The width of its border. Without it, there is no border."}),
        PaddingKey<&PlixDataBox::SetPaddingAll>("paddingAll", "The padding on all four sides."),
        PaddingKey<&PlixDataBox::SetPaddingTop>("paddingTop", "The padding at the top."),
        PaddingKey<&PlixDataBox::SetPaddingBottom>("paddingBottom", "The padding at the bottom."),
        PaddingKey<&PlixDataBox::SetPaddingStart>("paddingStart",
                                                  "The padding on the side where lines begin."),
        PaddingKey<&PlixDataBox::SetPaddingEnd>("paddingEnd",
                                                "The padding on the side where lines end."),
    }),
    CommonKeys<PlixDataBox>(),
    std::to_array<PlixJsonKey<PlixDataBox>>({
        ActionKey<PlixDataBox>(),
    }));

// Read after the other keys of a box, and only if the box is not nested too deeply.
inline constexpr auto kBoxContentsKeys = std::to_array<PlixJsonKey<PlixDataBox>>({
    {{.name = "contents",
      .type = PlixJsonType::Array,
      .part = PlixFormatPart::Component,
      .description = "Its items, in order."},
     [](PlixJsonDataParse& parse, const PlixJsonMember& member, PlixDataBox& box) {
         const Json::Value& contents = RequireArray(member);
         PlixDataContainer& children = *box.GetContainer();
         children.Reserve(contents.size());
         int index = 0;
         for (const Json::Value& node : contents)
             parse.AddComponent(node, index++, children);
         children.ShrinkToFit();
     }},
});

} // namespace plix
