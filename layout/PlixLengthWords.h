#pragma once

#include "layout/PlixKeywordTable.h"

#include <array>

// The words for lengths, in logical pixels. Each property has its own table; they
// differ on purpose.
namespace plix {

// The width of an image of the size "full" depends on the layout.
constexpr float kFullImageWidth = -2.0F;

inline constexpr std::array kLengths = std::to_array<PlixKeyword<int>>(
    {{"xs", 2}, {"sm", 4}, {"md", 8}, {"lg", 12}, {"xl", 16}, {"xxl", 20}});

inline constexpr std::array kCornerRadii = std::to_array<PlixKeyword<int>>(
    {{"xs", 1}, {"sm", 2}, {"md", 3}, {"lg", 4}, {"xl", 5}, {"xxl", 6}});

inline constexpr std::array kBorderWidths = std::to_array<PlixKeyword<int>>(
    {{"light", 1}, {"normal", 2}, {"medium", 3}, {"semibold", 4}, {"bold", 5}});

inline constexpr std::array kImageSizes =
    std::to_array<PlixKeyword<float>>({{"xxs", 40},
                                       {"xs", 60},
                                       {"sm", 80},
                                       {"md", 100},
                                       {"lg", 120},
                                       {"xl", 140},
                                       {"xxl", 160},
                                       {"3xl", 180},
                                       {"4xl", 200},
                                       {"5xl", 220},
                                       {"full", kFullImageWidth, "the whole width"}});

} // namespace plix
