#pragma once

#include <json/value.h>

#include <stdexcept>
#include <string_view>

// A member of a JSON object, with its name for error messages. It owns neither.
struct PlixJsonMember {
    std::string_view name;
    const Json::Value& value;
};

// Thrown for a value of the wrong type. The text is for the card's author: it
// names the key, the type that it needs, and the value that was found.
class PlixJsonTypeError : public std::runtime_error {
public:
    PlixJsonTypeError(const PlixJsonMember& member, const char* needed);
};

namespace plix {

// The conversions of the card format. They differ from jsoncpp's own: a number is
// not a string, and every value is a boolean. null counts as not given. They throw
// PlixJsonTypeError for a value that they cannot convert.

// A string; "true" or "false" for a boolean; empty for null. Valid as long as the
// value.
std::string_view ToString(const PlixJsonMember& member);

// A number without its fraction, if it is in the range of int; 0 or 1 for a
// boolean; 0 for null.
int ToInteger(const PlixJsonMember& member);

// Never throws. Numbers other than 0 and strings, arrays and objects that are not
// empty are true; null is false.
bool ToBoolean(const PlixJsonMember& member);

// Return the value of the member if it is an object (an array) or null.
const Json::Value& RequireObject(const PlixJsonMember& member);
const Json::Value& RequireArray(const PlixJsonMember& member);

// The member of an object; null if there is none.
const Json::Value* FindMember(const Json::Value& object, std::string_view name);

// The name of the member of an object that an iterator is at. Valid as long as the
// object.
std::string_view MemberName(const Json::ValueConstIterator& member);

// The "type" word of a component. Empty if `node` is not an object or its "type" is
// not a string. Valid as long as `node`.
std::string_view TypeWord(const Json::Value& node);

} // namespace plix
