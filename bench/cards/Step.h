#pragma once

#include <array>
#include <cstddef>

namespace bench {

// What is measured of a card's life, in the order in which it happens.
enum class Step {
    Read,
    Build,
    FirstPaint,
    RepaintScene,
    RepaintItems,
    RefreshFirst,
    RefreshAgain,
    OtherHeight,
    OtherWidth,
    Highlight,
    Delete,
};

inline constexpr std::array allSteps {
    Step::Read,         Step::Build,        Step::FirstPaint,   Step::RepaintScene,
    Step::RepaintItems, Step::RefreshFirst, Step::RefreshAgain, Step::OtherHeight,
    Step::OtherWidth,   Step::Highlight,    Step::Delete,
};

// For tables, and for counters.
const char* titleOf(Step step);

} // namespace bench
