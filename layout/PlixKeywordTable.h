#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

// Keyword tables are data: one row a word, one lookup for all tables. Words are
// compared exactly, case and blanks included, because card authors write one
// spelling and a near miss must be seen, not guessed at.
template <typename Value> struct PlixKeyword {
    std::string_view word;
    Value value;
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
