#pragma once

#include <string>
#include <string_view>

namespace plix {

// Whether the JSON text may have an escape of a UTF-16 surrogate, such as "\ud83d". If
// not, WithoutLoneSurrogates() would return it unchanged, more slowly.
bool MayHaveSurrogates(std::string_view json);

// Returns the JSON text with every escape of a surrogate that has no other half written as
// "\uFFFD", the replacement character. Programs write such escapes when they cut a text in
// the middle of an emoji. The JSON parser would stop at the first one.
std::string WithoutLoneSurrogates(std::string json);

} // namespace plix
