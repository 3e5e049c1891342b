#pragma once

#include "model/format/PlixFormat.h"

#include <string>
#include <string_view>
#include <vector>

// Where the keys of the card format stand in a card, for tests of every key.
namespace plix::test {

struct FormatPlace {
    const PlixFormatComponent* format;
    std::string path; // in a card
    std::string before; // the card up to the members, which end with a comma
    std::string after; // the rest of the card, from the last member of the object on
};

inline std::string cardWith(const FormatPlace& place, std::string_view key,
                            const std::string& value)
{
    return place.before + '"' + std::string(key) + "\": " + value + ", " + place.after;
}

inline FormatPlace componentPlace(const PlixFormatComponent& format)
{
    // Not the first item of the box, which has no margin.
    return {&format, "body.contents[1].",
            R"({"type": "bubble", "body": {"type": "box", "layout": "vertical", "contents": [)"
            R"({"type": "spacer"}, {)",
            "\"type\": \"" + std::string(format.type) + "\"}]}}"};
}

inline FormatPlace actionPlace(const std::string& path, const std::string& before,
                               const std::string& after)
{
    return {&PartFormat(PlixFormatPart::Action), path, before, after};
}

// One for each component and each part that has keys.
inline std::vector<FormatPlace> formatPlaces()
{
    std::vector<FormatPlace> places {{&BubbleFormat(), "", "{", R"("type": "bubble"})"}};
    for (const PlixFormatComponent& format : ComponentFormats())
        places.push_back(componentPlace(format));
    const std::string text = R"({"type": "bubble", "body": {"type": "text", )";
    places.push_back({&PartFormat(PlixFormatPart::Span), "body.contents[0].",
                      text + R"("contents": [{)", R"("type": "span"}]}})"});
    // The later member is a key that the format does not have.
    places.push_back(actionPlace("body.action.", text + R"("action": {)", R"("x": 0}}})"));
    const std::string styles = R"({"type": "bubble", "styles": {)";
    places.push_back({&PartFormat(PlixFormatPart::Styles), "styles.", styles, R"("x": 0}})"});
    places.push_back({&PartFormat(PlixFormatPart::ZoneStyle), "styles.body.",
                      styles + R"("body": {)", R"("x": 0}}})"});
    return places;
}

// JSON values of all kinds.
struct JsonSample {
    const char* kind;
    const char* json;
};

inline constexpr JsonSample kSamples[] = {
    {"null", "null"},   {"boolean", "true"}, {"number", "7"}, {"large number", "1e15"},
    {"string", "\"\""}, {"array", "[]"},     {"object", "{}"}};

// Whether the reader takes a value of this kind for a key of this type.
inline bool takesKind(PlixJsonType type, std::string_view kind)
{
    const bool isPlain = kind == "null" || kind == "boolean";
    switch (type) {
    case PlixJsonType::String:
        return isPlain || kind == "string";
    case PlixJsonType::Integer:
        return isPlain || kind == "number";
    case PlixJsonType::Boolean:
        return true;
    case PlixJsonType::Object:
        return kind == "null" || kind == "object";
    case PlixJsonType::Array:
        return kind == "null" || kind == "array";
    }
    return false;
}

} // namespace plix::test
