#pragma once

#include "model/PlixJsonValue.h"

#include <json/value.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

class PlixJsonDataParse;

// The type that a key's value must have.
enum class PlixJsonType { String, Integer, Boolean, Object, Array };

// One row of a component's table: a key, the type of its value, and a function
// that stores the value in the component.
template <typename Target> struct PlixJsonKey {
    std::string_view name;
    PlixJsonType type;
    void (*read)(PlixJsonDataParse& parse, const PlixJsonMember& member, Target& target);
};

namespace plix {

// Rows for plain values. `Setter` stores the value.

template <typename Target, auto Setter>
constexpr PlixJsonKey<Target> StringKey(std::string_view name)
{
    return {name, PlixJsonType::String,
            [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
                (target.*Setter)(ToString(member));
            }};
}

template <typename Target, auto Setter>
constexpr PlixJsonKey<Target> IntegerKey(std::string_view name)
{
    return {name, PlixJsonType::Integer,
            [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
                (target.*Setter)(ToInteger(member));
            }};
}

template <typename Target, auto Setter>
constexpr PlixJsonKey<Target> BooleanKey(std::string_view name)
{
    return {name, PlixJsonType::Boolean,
            [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
                (target.*Setter)(ToBoolean(member));
            }};
}

// Reads the keys of `object` in the order of the table. Ignores keys that are not
// in the table. An object has few of the keys that its table knows, so its members
// are looked up in the table and not the other way round.
template <typename Target, std::size_t Size>
void ReadKeys(const std::array<PlixJsonKey<Target>, Size>& keys, PlixJsonDataParse& parse,
              const Json::Value& object, Target& target)
{
    RequireObject({"a component", object});
    std::array<const Json::Value*, Size> values {};
    const auto end = object.end();
    for (auto member = object.begin(); member != end; ++member) {
        const std::string_view name = MemberName(member);
        const auto key = std::find_if(keys.begin(), keys.end(),
                                      [name](const auto& row) { return row.name == name; });
        if (key != keys.end())
            values[static_cast<std::size_t>(key - keys.begin())] = &*member;
    }
    for (std::size_t i = 0; i < Size; ++i) {
        if (values[i])
            keys[i].read(parse, {keys[i].name, *values[i]}, target);
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
