#pragma once

// The bounds of what a card may cost its host, with the reason for each. Cards come from
// strangers. docs/limits.md describes the bounds for hosts and authors; those of a text
// are in kestro_control/TextLimits.h.
namespace plix {

// ----- The layout

// The maximum of a number of a style, and of a computed length. Yoga and Qt convert
// numbers to 32-bit integers, where larger ones, or the sum of a few, would not fit.
// A float still counts single pixels up to there.
constexpr double kMaximumStyleNumber = 1e6;

} // namespace plix
