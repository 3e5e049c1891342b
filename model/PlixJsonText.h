#pragma once

#include <json/value.h>

#include <string>

namespace plix {

// Parses the JSON of a card message, and drops its comments. If `text` is not valid
// JSON, returns what precedes the first error, or null. Throws Json::Exception if
// `text` is nested more deeply than the parser allows.
//
// The result does not depend on the locale. Strings are any bytes: UTF-8 is not checked,
// control characters need no escape, and a zero is a character like others. An escape of
// half a surrogate pair is read as U+FFFD. A byte-order mark in front is skipped. What
// follows the first value is ignored. Of members with the same name, the last one counts.
Json::Value ReadJsonText(const std::string& text);

} // namespace plix
