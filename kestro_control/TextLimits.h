#pragma once

// The bounds of what a text may cost, with the reason for each. Texts come from
// strangers. TextItem.h describes them.
namespace kestro::limits {

// The maximum cost of what is shown of a text. A layout of that cost takes some
// milliseconds. A screen shows a tenth of that.
constexpr int kTextCost = 16'000;
// The maximum between two places where a line can break. To find where to break it,
// the text engine measures what does not fit again for each line.
constexpr int kWordCost = 2000;

// What a UTF-16 code unit costs.
constexpr int kCharacterCost = 1;
// What is added for the start of a run: the text engine shapes each run on its own.
constexpr int kRunCost = 8;
// What is added for a zero width joiner. The emoji sequences that it joins are slow to
// shape.
constexpr int kJoinerCost = 40;
// What is added for an emoji or another pictograph. The text engine decodes the picture of
// a coloured glyph each time that it measures or draws it: 0.2 milliseconds for each.
constexpr int kPictographCost = 40;
// The same for a regional indicator. Two of them are one picture, that of a flag.
constexpr int kFlagHalfCost = 20;
// How many times the pictures of emoji count in TextItem::Cost(). In a single text they cost
// less than their time, so that it may have hundreds of them, as people send.
constexpr int kPicturesInSum = 5;

// The number of marks on one letter that is usual in living languages. Each further one
// costs as much as a run.
constexpr int kMarksOnALetter = 2;

// How many words are highlighted. Each is searched in the whole text.
constexpr int kHighlightWords = 1000;

// How many characters a tooltip shows of an elided text. More would not fit on a screen.
constexpr int kToolTipCharacters = 2000;

} // namespace kestro::limits
