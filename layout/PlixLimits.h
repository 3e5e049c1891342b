#pragma once

// The bounds of what a card may cost its host, with the reason for each. Cards come from
// strangers. docs/limits.md describes the bounds for hosts and authors; those of a text
// are in kestro_control/TextLimits.h.
namespace plix {

// ----- The message

// The maximum for the JSON of a message. Our largest example has 33 kB. Values in memory
// take a hundred times the bytes of the shortest ones in a text.
constexpr int kMaximumMessageBytes = 2 * 1024 * 1024;

// The maximum depth of nested boxes in a zone. The time for a layout grows with the depth,
// and real cards have fewer than ten levels.
constexpr int kMaximumNestedBoxes = 24;

// The maximum number of items of a card. Qt takes time for each item that grows with the
// number of items before it in the same box: 20,000 take 9 seconds, 2,500 a fraction of
// one. Our largest example has 207.
constexpr int kMaximumItems = 2500;

// The maximum number of mentions of a card at which the Tab key stops. Each stop is an
// item. The mouse reaches the other mentions, too.
constexpr int kMaximumMentionStops = 500;

// What is shown of the label of a button, in characters. No button is wide enough to show
// more, and shaping a very long label would keep the GUI thread busy.
constexpr int kMaximumLabelLength = 1000;

// ----- The layout

// The maximum of a number of a style, and of a computed length. Yoga and Qt convert
// numbers to 32-bit integers, where larger ones, or the sum of a few, would not fit.
// A float still counts single pixels up to there.
constexpr double kMaximumStyleNumber = 1e6;

} // namespace plix
