#pragma once

#include "layout/PlixKeywordTable.h"
#include "model/format/PlixWords.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

// A word of the card format, for tools: without the type of its value.
struct PlixFormatWord {
    std::string_view word;
    // In logical pixels, if the word stands for a length.
    std::optional<double> pixels;
    std::string_view meaning; // if it does not stand for a length
};

namespace plix {

template <typename Value> constexpr std::optional<double> PixelsOf(const Value& value)
{
    if constexpr (std::integral<Value> || std::floating_point<Value>)
        return static_cast<double>(value);
    else if constexpr (std::same_as<Value, PlixBubbleSize>)
        return static_cast<double>(value.width);
    else
        return std::nullopt;
}

template <typename Value, std::size_t Size>
constexpr std::array<PlixFormatWord, Size>
ToFormatWords(const std::array<PlixKeyword<Value>, Size>& table)
{
    std::array<PlixFormatWord, Size> words {};
    for (std::size_t i = 0; i < Size; ++i) {
        const PlixKeyword<Value>& row = table[i];
        words[i] = {row.word, row.meaning.empty() ? PixelsOf(row.value) : std::nullopt,
                    row.meaning};
    }
    return words;
}

template <const auto& Table> inline constexpr auto kFormatWords = ToFormatWords(Table);

// The words of a table of keywords.
template <const auto& Table> constexpr std::span<const PlixFormatWord> Words()
{
    return kFormatWords<Table>;
}

} // namespace plix
