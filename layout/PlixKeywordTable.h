#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

// A row of a keyword table: tables hold a row for each word, and FindKeyword() is the
// one lookup. It compares words exactly, case and blanks included: the
// author of a card must notice a misspelt word.
template <typename Value> struct PlixKeyword {
    std::string_view word;
    Value value;
    // For authors of cards, if the value does not say enough.
    std::string_view meaning = {};
};

namespace plix {

template <typename Value, std::size_t Size>
constexpr std::optional<Value> FindKeyword(const std::array<PlixKeyword<Value>, Size>& table,
                                           std::string_view word)
{
    const auto found = std::find_if(table.begin(), table.end(),
                                    [word](const auto& row) { return row.word == word; });
    return found == table.end() ? std::nullopt : std::optional<Value>(found->value);
}

} // namespace plix
