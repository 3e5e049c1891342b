#pragma once

#include "model/PlixDataFiller.h"
#include "model/PlixDataSeparator.h"
#include "model/PlixDataSpacer.h"
#include "model/format/PlixCommonKeys.h"

#include <array>

namespace plix {

inline constexpr auto kSpacerKeys = std::to_array<PlixJsonKey<PlixDataSpacer>>({
    StringKey<PlixDataSpacer, &PlixDataSpacer::SetSize>(
        {.name = "size",
         .rule = PlixValueRule::Word,
         .words = Words<kLengths>(),
         .fallback = "\"md\"",
         .description = "Its height in a column, its width in a row."}),
});

inline constexpr auto kFillerKeys = std::to_array<PlixJsonKey<PlixDataFiller>>({
    IntegerKey<PlixDataFiller, &PlixDataFiller::SetFlex>(
        {.name = "flex",
         .description = "Its share of the free space. Without it, a filler has a share of 1 in "
                        "a row, and none in a column."}),
});

inline constexpr auto kSeparatorKeys = std::to_array<PlixJsonKey<PlixDataSeparator>>({
    MarginKey<PlixDataSeparator>(),
    StringKey<PlixDataSeparator, &PlixDataSeparator::SetColor>({.name = "color",
                                                                .rule = PlixValueRule::Color,
                                                                .fallback = "\"#1A222222\"",
                                                                .description = "Its colour."}),
});

} // namespace plix
