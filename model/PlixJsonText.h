#pragma once

#include <json/value.h>

#include <string>

namespace plix {

// The JSON of a card message, without its comments. Of a text that is not JSON
// it is what stands before the first mistake, or null. Throws for text that is
// nested more deeply than the parser goes.
//
// The same text gives the same value in every locale.
Json::Value ReadJsonText(const std::string& text);

} // namespace plix
