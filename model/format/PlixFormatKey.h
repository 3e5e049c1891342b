#pragma once

#include "model/format/PlixFormatWord.h"

#include <span>
#include <string_view>

// The type that a key's value must have.
enum class PlixJsonType { String, Integer, Boolean, Object, Array };

// How the text of a string is read.
enum class PlixValueRule {
    Text, // any text
    Word, // one of the key's words
    Length, // one of the words, or a whole number with or without "px"
    LengthOrPercent, // the same, or a whole number with "%"
    Color, // "#RRGGBB", "#AARRGGBB" or another colour that Qt reads
    ColorAlphaLast, // the same, but "#RRGGBBAA"
    Ratio, // two numbers with a colon
    Url,
};

// What an object, or the elements of an array, consist of.
enum class PlixFormatPart {
    None,
    Component, // that of its "type"
    Span,
    Action,
    Styles,
    ZoneStyle,
    Texts, // a text for each of some languages
    Variants, // a text for each language
};

// What the card format says about a key.
struct PlixFormatKey {
    std::string_view name;
    PlixJsonType type = PlixJsonType::String;
    PlixValueRule rule = PlixValueRule::Text;
    std::span<const PlixFormatWord> words = {};
    PlixFormatPart part = PlixFormatPart::None;
    // What a missing key stands for, as JSON. Empty if that depends on other keys, or
    // if there is nothing then.
    std::string_view fallback = {};
    // What an unknown word stands for, if not for a missing key.
    std::string_view unknownWord = {};
    // Whether authors must give it for a card that looks as meant.
    bool isRequired = false;
    // Whether a length may be below 0.
    bool mayBeNegative = false;
    // One line for authors of cards.
    std::string_view description = {};
};
