#pragma once

#include <json/value.h>

#include <string>

namespace plix {

// Parses the JSON of a card message, and drops its comments. If `text` is not valid
// JSON, returns what precedes the first error, or null. Throws Json::Exception if
// `text` is nested more deeply than the parser allows.
//
// The result does not depend on the locale.
Json::Value ReadJsonText(const std::string& text);

} // namespace plix
