#pragma once

#include <QColor>

#include <cstdint>
#include <string>

// What the words of a card mean in logical pixels. Each property has a table
// and a fallback of its own; that they differ is the look of the cards.
//
// None of these conversions fails: a number that cannot be read is 0, an
// unknown word takes the fallback of its table.

// A length that may also be a share of the parent's.
struct PlixLength {
    std::int64_t px = -1; // -1: not given
    std::int64_t percent = 0; // 0: not a percentage
};

namespace plix {

// "xs" 2 ... "xxl" 20, or a whole number with or without "px"; empty: 0.
int ToLengthPixels(const std::string& text);

// A share such as "25%": the whole number, 0 when it is not one.
int ToPercent(const std::string& text);

// Reads `text` into `length`; "50%" gives px 0 and percent 50, an empty text
// px -1 and percent 0. A text in pixels leaves `percent` as it was.
void ParseLength(const std::string& text, PlixLength& length);

// A box's "spacing" is a word; numbers count as 0.
int ToSpacingPixels(const std::string& text);

// A box's "cornerRadius"; -1 for an empty text.
int ToCornerRadius(const std::string& text);

// A box's "borderWidth"; -1 for an empty text.
int ToBorderWidth(const std::string& text);

// A spacer's "size"; 8 for anything but a word of the length table.
int ToSpacerPixels(const std::string& text);

// An image's "size"; kFullImageWidth for "full", 100 for unknown words.
constexpr float kFullImageWidth = -2.0F;
float ToImageSize(const std::string& text);

// A picture's "aspectRatio" of width to height, such as "16:9", as the width
// divided by the height; 1 for anything that gives no positive, finite number.
float ToAspectRatio(const std::string& text);

// "#RGB", "#RRGGBB", "#AARRGGBB" or an SVG colour name; an invalid QColor for
// anything else, without the warning that Qt would print for it.
QColor ToColor(const std::string& text);

// Card authors write "#RRGGBBAA", Qt reads "#AARRGGBB": moves the last two of
// nine characters to the front. Other texts come back unchanged.
std::string ToAlphaFirst(const std::string& color);

} // namespace plix
