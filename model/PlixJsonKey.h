#pragma once

#include "model/PlixJsonValue.h"
#include "model/format/PlixFormatKey.h"

#include <json/value.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

class PlixJsonDataParse;

// A function of the reader that stores a key's value in its component.
template <typename Target>
using PlixJsonReadFunc = void (*)(PlixJsonDataParse& parse, const PlixJsonMember& member,
                                  Target& target);

// One row of a component's table: what the format says about a key, and where its
// value goes.
template <typename Target> struct PlixJsonKey {
    PlixFormatKey format;
    PlixJsonReadFunc<Target> read;
};

namespace plix {

// Rows for plain values. `Setter` stores the value.

template <typename Target, auto Setter>
constexpr PlixJsonKey<Target> StringKey(PlixFormatKey format)
{
    format.type = PlixJsonType::String;
    return {format, [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
                (target.*Setter)(ToString(member));
            }};
}

template <typename Target, auto Setter>
constexpr PlixJsonKey<Target> IntegerKey(PlixFormatKey format)
{
    format.type = PlixJsonType::Integer;
    return {format, [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
                (target.*Setter)(ToInteger(member));
            }};
}

template <typename Target, auto Setter>
constexpr PlixJsonKey<Target> BooleanKey(PlixFormatKey format)
{
    format.type = PlixJsonType::Boolean;
    return {format, [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
                (target.*Setter)(ToBoolean(member));
            }};
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

// What the reader needs of a row. The rows of a table are close together, because
// it searches them for each member of each component.
template <typename Target> struct PlixJsonReadRow {
    std::string_view name;
    PlixJsonReadFunc<Target> read;
};

template <typename Target, std::size_t Size>
constexpr auto ToReadRows(const std::array<PlixJsonKey<Target>, Size>& keys)
{
    std::array<PlixJsonReadRow<Target>, Size> rows {};
    std::transform(keys.begin(), keys.end(), rows.begin(),
                   [](const PlixJsonKey<Target>& key) -> PlixJsonReadRow<Target> {
                       return {key.format.name, key.read};
                   });
    return rows;
}

// Reads the keys of `object` in the order of the table. Ignores keys that are not
// in the table. An object has few of the keys that its table knows, so its members
// are looked up in the table and not the other way round.
template <const auto& Keys, typename Target>
void ReadKeys(PlixJsonDataParse& parse, const Json::Value& object, Target& target)
{
    static constexpr auto kRows = ToReadRows(Keys);
    RequireObject({"a component", object});
    std::array<const Json::Value*, kRows.size()> values {};
    const auto end = object.end();
    for (auto member = object.begin(); member != end; ++member) {
        const std::string_view name = MemberName(member);
        const auto* const row = std::find_if(
            kRows.begin(), kRows.end(), [name](const auto& each) { return each.name == name; });
        if (row != kRows.end())
            values[static_cast<std::size_t>(row - kRows.begin())] = &*member;
    }
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        if (values[i])
            kRows[i].read(parse, {kRows[i].name, *values[i]}, target);
    }
}

} // namespace plix
