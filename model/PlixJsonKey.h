#pragma once

#include "model/PlixJsonValue.h"

#include <json/value.h>

#include <algorithm>
#include <array>
#include <cstddef>

class PlixJsonDataParse;

// The type that a key's value must have.
enum class PlixJsonType { String, Integer, Boolean, Object, Array };

// One row of a component's table: a key, the type of its value, and a function
// that stores the value in the component.
template <typename Target> struct PlixJsonKey {
    const char* name;
    PlixJsonType type;
    void (*read)(PlixJsonDataParse& parse, const PlixJsonMember& member, Target& target);
};

namespace plix {

// Rows for plain values. `Setter` stores the value.

template <typename Target, auto Setter> constexpr PlixJsonKey<Target> StringKey(const char* name)
{
    return {name, PlixJsonType::String,
            [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
                (target.*Setter)(ToString(member));
            }};
}

template <typename Target, auto Setter> constexpr PlixJsonKey<Target> IntegerKey(const char* name)
{
    return {name, PlixJsonType::Integer,
            [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
                (target.*Setter)(ToInteger(member));
            }};
}

template <typename Target, auto Setter> constexpr PlixJsonKey<Target> BooleanKey(const char* name)
{
    return {name, PlixJsonType::Boolean,
            [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
                (target.*Setter)(ToBoolean(member));
            }};
}

// Reads the keys of `object` in the order of the table. Ignores keys that are not
// in the table.
template <typename Target, std::size_t Size>
void ReadKeys(const std::array<PlixJsonKey<Target>, Size>& keys, PlixJsonDataParse& parse,
              const Json::Value& object, Target& target)
{
    for (const PlixJsonKey<Target>& key : keys) {
        if (object.isMember(key.name))
            key.read(parse, {key.name, object[key.name]}, target);
    }
}

// Joins the parts of a table.
template <typename Target, std::size_t... Sizes>
constexpr auto JoinKeys(const std::array<PlixJsonKey<Target>, Sizes>&... parts)
{
    std::array<PlixJsonKey<Target>, (Sizes + ...)> all {};
    auto next = all.begin();
    ((next = std::copy(parts.begin(), parts.end(), next)), ...);
    return all;
}

} // namespace plix
