#pragma once

#include "model/PlixDataButton.h"
#include "model/format/PlixCommonKeys.h"

#include <array>

namespace plix {

// The label is that of the action.
inline constexpr auto kButtonKeys = JoinKeys(
    std::to_array<PlixJsonKey<PlixDataButton>>({
        StringKey<PlixDataButton, &PlixDataButton::SetStyle>({.name = "style",
                                                              .rule = PlixValueRule::Word,
                                                              .words = Words<kButtonLooks>(),
                                                              .fallback = "\"link\"",
                                                              .unknownWord = "a black label",
                                                              .description = "Its look."}),
        StringKey<PlixDataButton, &PlixDataButton::SetHeight>({.name = "height",
                                                               .rule = PlixValueRule::Word,
                                                               .words = Words<kButtonHeights>(),
                                                               .fallback = "\"md\"",
                                                               .description = "Its height."}),
        StringKey<PlixDataButton, &PlixDataButton::SetColor>(
            {.name = "color",
             .rule = PlixValueRule::Color,
             .description = "The colour of its plate, or of the label of a link."}),
        StringKey<PlixDataButton, &PlixDataButton::SetGravity>(
            {.name = "gravity",
             .rule = PlixValueRule::Word,
             .words = Words<kGravities>(),
             .description = "Where it is from top to bottom in a row."}),
        StringKey<PlixDataButton, &PlixDataButton::SetSize>(
            {.name = "size",
             .rule = PlixValueRule::Word,
             .words = Words<kTextSizes>(),
             .fallback = "\"md\"",
             .description = "The height of its font."}),
    }),
    CommonKeys<PlixDataButton>(),
    std::to_array<PlixJsonKey<PlixDataButton>>({ActionKey<PlixDataButton>()}));

} // namespace plix
