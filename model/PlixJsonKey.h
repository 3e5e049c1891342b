#pragma once

#include "model/PlixJsonValue.h"

#include <array>
#include <type_traits>

class PlixJsonDataParse;

// What a key's value has to be.
enum class PlixJsonType { String, Integer, Boolean, Object, Array };

// One row of a component's table: a key, what its value has to be, and how the
// value reaches the component. Rows stand in reading order.
template <typename Target> struct PlixJsonKey {
    const char* name;
    PlixJsonType type;
    void (*read)(PlixJsonDataParse& parse, const PlixJsonMember& member, Target& target);
};

namespace plix {

// Rows for plain values, by the setter they go to.

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

// The one routine that walks a table: every key of `object` that the table
// knows is read, the others are ignored.
template <typename Target, std::size_t Size>
void ReadKeys(const std::array<PlixJsonKey<Target>, Size>& keys, PlixJsonDataParse& parse,
              const Json::Value& object, Target& target)
{
    for (const PlixJsonKey<Target>& key : keys) {
        if (object.isMember(key.name))
            key.read(parse, {key.name, object[key.name]}, target);
    }
}

// Puts parts of a table in a row.
template <typename Target, std::size_t... Sizes>
constexpr auto JoinKeys(const std::array<PlixJsonKey<Target>, Sizes>&... parts)
{
    std::array<PlixJsonKey<Target>, (Sizes + ...)> all {};
    auto next = all.begin();
    ((next = std::copy(parts.begin(), parts.end(), next)), ...);
    return all;
}

} // namespace plix
