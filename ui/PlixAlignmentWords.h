#pragma once

#include "model/format/PlixWords.h"

#include <optional>
#include <string>

namespace plix {

// "start", "center" and "end" in a card that reads from left to right; nothing for
// any other word.
std::optional<PlixAlignment> FindAlign(const std::string& word);

// "top", "center" and "bottom"; nothing for any other word.
std::optional<PlixAlignment> FindGravity(const std::string& word);

} // namespace plix
