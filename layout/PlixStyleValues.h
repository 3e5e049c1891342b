#pragma once

#include <QColor>

#include <cstdint>
#include <string>
#include <string_view>

// Turns the words of a card into logical pixels. Each property has its own table
// and its own fallback; they differ on purpose.
//
// None of these conversions fails: a number that cannot be read is 0, and an
// unknown word gives the fallback of its table.

// A length in pixels, or as a percentage of the parent's.
struct PlixLength {
    std::int64_t px = -1; // -1: not given
    std::int64_t percent = 0; // 0: not a percentage
};

namespace plix {

// "xs" 2 ... "xxl" 20, or a whole number with or without "px"; 0 for an empty text.
int ToLengthPixels(const std::string& text);

// A percentage such as "25%": the whole number, 0 if it is not one.
int ToPercent(const std::string& text);

// Reads `text` into `length`; "50%" gives px 0 and percent 50, an empty text
// px -1 and percent 0. A text in pixels leaves `percent` as it was.
void ParseLength(const std::string& text, PlixLength& length);

// A box's "spacing", which is a word; 0 for numbers.
int ToSpacingPixels(const std::string& text);

// A box's "cornerRadius"; -1 for an empty text.
int ToCornerRadius(const std::string& text);

// A box's "borderWidth"; -1 for an empty text.
int ToBorderWidth(const std::string& text);

// A spacer's "size"; 8 for anything but a word of the length table.
int ToSpacerPixels(const std::string& text);

// An image's "size"; kFullImageWidth for "full", 100 for unknown words.
float ToImageSize(const std::string& text);

// The "aspectRatio" of an image or icon, such as "16:9", as its width divided by its
// height; 1 for anything that gives no positive, finite number.
float ToAspectRatio(const std::string& text);

// "#RGB", "#RRGGBB", "#AARRGGBB" or an SVG colour name; an invalid QColor for
// anything else, without the warning that Qt would print for it.
QColor ToColor(const std::string& text);

// "#RRGGBBAA", which card authors write, as "#AARRGGBB", which Qt reads. A text
// that is not nine characters long is returned unchanged.
std::string RgbaToArgb(std::string_view color);

} // namespace plix
