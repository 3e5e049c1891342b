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

// The maximum for what all texts and labels of a card cost, as TextItem::Cost(). That is
// 64,000 letters or 300 emoji, which take a tenth of a second. Our largest example costs 1,500.
constexpr int kMaximumTextCost = 64'000;

// What is shown of the label of a button, in characters. No button is wide enough to show
// more, and shaping a very long label would keep the GUI thread busy.
constexpr int kMaximumLabelLength = 1000;

// ----- The layout

// The maximum of a number of a style, and of a computed length. Yoga and Qt convert
// numbers to 32-bit integers, where larger ones, or the sum of a few, would not fit.
// A float still counts single pixels up to there.
constexpr double kMaximumStyleNumber = 1e6;

// ----- Pictures. A card may name any picture, and a few bytes can make a decoder need
// gigabytes or minutes.

// The maximum for a picture file. It is read into memory as a whole.
constexpr int kMaximumPictureFileBytes = 32 * 1024 * 1024;

// The maximum for a picture. It takes 64 MiB and a fifth of a second, even if its file
// has only 59 kB.
constexpr int kMaximumPicturePixels = 4096 * 4096;

// The maximum for the passes over the pixels of a JPEG file. It can have any number of
// them, each of a few bytes.
constexpr int kMaximumJpegScans = 64;

// The maximum for what is done for pictures in one paint, in pixels that are read or
// written: as much as one picture of the maximum size needs.
constexpr int kMaximumPictureWork = 2 * kMaximumPicturePixels;

// The maximum for a picture that is scaled to the size in which an item shows it. The
// painter scales it up to more pixels. It is more than a card fills on any screen.
constexpr int kMaximumScaledPixels = 2048 * 2048;

// The maximum for the scaled pictures of all cards that are cached. A window full of cards
// needs a tenth of it.
constexpr int kMaximumCachedBytes = 128 * 1024 * 1024;

// The maximum for the scaled pictures that the items of one card, and of all cards, keep
// because the cache has lost them or they had to wait. No screen shows that many pixels.
constexpr int kMaximumKeptBytesOfCard = 128 * 1024 * 1024;
constexpr int kMaximumKeptBytes = 256 * 1024 * 1024;

// The maximum for decoded pictures, until control returns to Qt: one picture of the
// maximum size.
constexpr int kMaximumDecodedBytes = 4 * kMaximumPicturePixels;

// The maximum for the memory of an animation, with its file. Playing a larger one would
// keep the GUI thread busy; its first frame is shown.
constexpr int kMaximumMovieBytes = 32 * 1024 * 1024;

// The maximum for all animations that play. A card may name thousands of them.
constexpr int kMaximumMoviesBytes = 256 * 1024 * 1024;

} // namespace plix
