#pragma once

#include <json/value.h>

#include <stdexcept>
#include <string>
#include <string_view>

// A member of a JSON object that is being read, with its name, so that a
// complaint about it can say where to look.
struct PlixJsonMember {
    std::string_view name;
    const Json::Value& value;
};

// A value of another kind than its key needs. The text is for the card's
// author: which key, what it needs, what was found.
class PlixJsonTypeError : public std::runtime_error {
public:
    PlixJsonTypeError(const PlixJsonMember& member, const char* needed);
};

namespace plix {

// The conversions that are part of the card format. They are stricter than
// jsoncpp's own with numbers where a string is needed, and more lenient with
// anything where a boolean is needed; null counts as nothing given.

// null: empty; a boolean: "true" or "false"; else strings only.
std::string ToString(const PlixJsonMember& member);

// null: 0; a boolean: 0 or 1; a number in range: its whole part.
int ToInteger(const PlixJsonMember& member);

// Never throws: non-zero numbers and non-empty strings, arrays and objects
// are true.
bool ToBoolean(const PlixJsonMember& member);

// The value itself once it is known to be an object (an array) or null.
const Json::Value& RequireObject(const PlixJsonMember& member);
const Json::Value& RequireArray(const PlixJsonMember& member);

// The "type" word of a component; empty for anything that is no object or has
// no text there, since neither names a component.
std::string TypeWord(const Json::Value& node);

} // namespace plix
