#pragma once

#include "model/PlixDataBubble.h"
#include "model/PlixZoneStyle.h"
#include "model/format/PlixCommonKeys.h"

#include <array>

namespace plix {

inline constexpr auto kZoneStyleKeys = std::to_array<PlixJsonKey<PlixZoneStyle>>({
    StringKey<PlixZoneStyle, &PlixZoneStyle::SetBackgroundColor>(
        {.name = "backgroundColor",
         .rule = PlixValueRule::Color,
         .description = "The background of the zone's box, if the box has none."}),
    BooleanKey<PlixZoneStyle, &PlixZoneStyle::SetSeparator>(
        {.name = "separator",
         .fallback = "false",
         .description = "Whether a line is above the zone. The first zone has none."}),
    StringKey<PlixZoneStyle, &PlixZoneStyle::SetSeparatorColor>(
        {.name = "separatorColor",
         .rule = PlixValueRule::Color,
         .fallback = "\"#CCCCCC\"",
         .description = "The colour of that line."}),
});

template <auto Style>
constexpr PlixJsonKey<PlixDataBubble> ZoneStyleKey(std::string_view name,
                                                   std::string_view description)
{
    return {{.name = name,
             .type = PlixJsonType::Object,
             .part = PlixFormatPart::ZoneStyle,
             .description = description},
            [](PlixJsonDataParse& parse, const PlixJsonMember& member, PlixDataBubble& bubble) {
                ReadKeys<kZoneStyleKeys>(parse, RequireObject(member), (bubble.*Style)());
            }};
}

inline constexpr auto kStylesKeys = std::to_array<PlixJsonKey<PlixDataBubble>>({
    ZoneStyleKey<&PlixDataBubble::GetHeaderStyle>("header", "The style of the header."),
    ZoneStyleKey<&PlixDataBubble::GetHeroStyle>("hero", "The style of the hero."),
    ZoneStyleKey<&PlixDataBubble::GetBodyStyle>("body", "The style of the body."),
    ZoneStyleKey<&PlixDataBubble::GetFooterStyle>("footer", "The style of the footer."),
});

template <auto Zone>
constexpr PlixJsonKey<PlixDataBubble> ZoneKey(std::string_view name, std::string_view description)
{
    return {{.name = name,
             .type = PlixJsonType::Object,
             .part = PlixFormatPart::Component,
             .description = description},
            [](PlixJsonDataParse& parse, const PlixJsonMember& member, PlixDataBubble& bubble) {
                parse.ParseZone(member, (bubble.*Zone)());
            }};
}

inline constexpr auto kBubbleKeys = std::to_array<PlixJsonKey<PlixDataBubble>>({
    StringKey<PlixDataBubble, &PlixDataBubble::SetDirection>(
        {.name = "direction",
         .rule = PlixValueRule::Word,
         .words = Words<kDirections>(),
         .fallback = "\"ltr\"",
         .description = "The direction in which rows and texts run."}),
    StringKey<PlixDataBubble, &PlixDataBubble::SetSize>({.name = "size",
                                                         .rule = PlixValueRule::Word,
                                                         .words = Words<kBubbleSizes>(),
                                                         .fallback = "\"mega\"",
                                                         .description = "The width of the card."}),
    ZoneKey<&PlixDataBubble::GetHeader>("header", "The first zone, normally a box with a title."),
    ZoneKey<&PlixDataBubble::GetHero>(
        "hero", "The zone below the header, without paddings, normally a picture."),
    ZoneKey<&PlixDataBubble::GetBody>("body", "The zone of the content, normally a box."),
    ZoneKey<&PlixDataBubble::GetFooter>("footer", "The last zone, normally a box with buttons."),
    {{.name = "styles",
      .type = PlixJsonType::Object,
      .part = PlixFormatPart::Styles,
      .description = "Backgrounds of the zones, and lines between them."},
     [](PlixJsonDataParse& parse, const PlixJsonMember& member, PlixDataBubble& bubble) {
         ReadKeys<kStylesKeys>(parse, RequireObject(member), bubble);
     }},
    ActionKey<PlixDataBubble>(),
});

} // namespace plix
