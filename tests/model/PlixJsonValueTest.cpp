#include "model/PlixJsonValue.h"

#include <gtest/gtest.h>

#include <json/reader.h>

#include <functional>
#include <optional>
#include <string>

namespace {

Json::Value parsed(const std::string& json)
{
    Json::Value value;
    EXPECT_TRUE(Json::Reader().parse('[' + json + ']', value)) << json;
    return value[0];
}

// The text of the exception; empty if nothing is thrown.
std::string errorText(const std::function<void()>& convert)
{
    try {
        convert();
    } catch (const PlixJsonTypeError& error) {
        return error.what();
    }
    return {};
}

// The results of the conversions of a JSON value; nothing where one throws.
struct Conversion {
    const char* json;
    std::optional<std::string> string;
    std::optional<int> integer;
    bool boolean;
};

const Conversion kConversions[] = {
    {"null", "", 0, false},
    {"true", "true", 1, true},
    {"false", "false", 0, false},
    {R"("")", "", std::nullopt, false},
    {R"("text")", "text", std::nullopt, true},
    {R"("12")", "12", std::nullopt, true},
    {R"("false")", "false", std::nullopt, true},
    {"[]", std::nullopt, std::nullopt, false},
    {"[0]", std::nullopt, std::nullopt, true},
    {"{}", std::nullopt, std::nullopt, false},
    {R"({"a": 0})", std::nullopt, std::nullopt, true},
    {"0", std::nullopt, 0, false},
    {"12", std::nullopt, 12, true},
    {"-12", std::nullopt, -12, true},
    {"2147483647", std::nullopt, 2147483647, true},
    {"2147483648", std::nullopt, std::nullopt, true},
    {"-2147483648", std::nullopt, -2147483647 - 1, true},
    {"-2147483649", std::nullopt, std::nullopt, true},
    {"18446744073709551615", std::nullopt, std::nullopt, true},
    {"99999999999999999999999", std::nullopt, std::nullopt, true},
    {"0.0", std::nullopt, 0, false},
    {"0.9", std::nullopt, 0, true},
    {"2.9", std::nullopt, 2, true},
    {"-2.9", std::nullopt, -2, true},
    {"1e3", std::nullopt, 1000, true},
    {"2147483647.0", std::nullopt, 2147483647, true},
    {"2147483648.0", std::nullopt, std::nullopt, true},
    {"-2147483648.0", std::nullopt, -2147483647 - 1, true},
    {"-2147483649.0", std::nullopt, std::nullopt, true},
    {"1e300", std::nullopt, std::nullopt, true},
    {"-1e300", std::nullopt, std::nullopt, true},
};

TEST(PlixJsonValue, Strings)
{
    for (const Conversion& row : kConversions) {
        SCOPED_TRACE(row.json);
        const Json::Value value = parsed(row.json);
        if (row.string)
            EXPECT_EQ(plix::ToString({"key", value}), *row.string);
        else
            EXPECT_THROW(plix::ToString({"key", value}), PlixJsonTypeError);
    }
}

TEST(PlixJsonValue, Integers)
{
    for (const Conversion& row : kConversions) {
        SCOPED_TRACE(row.json);
        const Json::Value value = parsed(row.json);
        if (row.integer)
            EXPECT_EQ(plix::ToInteger({"key", value}), *row.integer);
        else
            EXPECT_THROW(plix::ToInteger({"key", value}), PlixJsonTypeError);
    }
}

TEST(PlixJsonValue, BooleansNeverFail)
{
    for (const Conversion& row : kConversions) {
        SCOPED_TRACE(row.json);
        EXPECT_EQ(plix::ToBoolean({"key", parsed(row.json)}), row.boolean);
    }
}

TEST(PlixJsonValue, ObjectsAndArraysAreRequiredOrNull)
{
    for (const Conversion& row : kConversions) {
        SCOPED_TRACE(row.json);
        const Json::Value value = parsed(row.json);
        const PlixJsonMember member {"key", value};
        if (value.isObject() || value.isNull())
            EXPECT_EQ(&plix::RequireObject(member), &value);
        else
            EXPECT_THROW(plix::RequireObject(member), PlixJsonTypeError);
        if (value.isArray() || value.isNull())
            EXPECT_EQ(&plix::RequireArray(member), &value);
        else
            EXPECT_THROW(plix::RequireArray(member), PlixJsonTypeError);
    }
}

TEST(PlixJsonValue, ErrorsNameTheKeyTheNeededTypeAndTheValue)
{
    const struct {
        const char* behaviour;
        const char* json;
        void (*convert)(const PlixJsonMember& member);
        const char* text;
    } rows[] = {
        {"a number for a string", "16", [](const PlixJsonMember& m) { plix::ToString(m); },
         R"("key" must be a string, but is the number 16)"},
        {"a real for a string", "1.5", [](const PlixJsonMember& m) { plix::ToString(m); },
         R"("key" must be a string, but is the number 1.5)"},
        {"a real that has no exact binary form", "0.1",
         [](const PlixJsonMember& m) { plix::ToString(m); },
         R"("key" must be a string, but is the number 0.1)"},
        {"a large real", "-2.5e300", [](const PlixJsonMember& m) { plix::ToString(m); },
         R"("key" must be a string, but is the number -2.5e+300)"},
        {"an array for a string", "[1]", [](const PlixJsonMember& m) { plix::ToString(m); },
         R"("key" must be a string, but is an array)"},
        {"an object for a string", "{}", [](const PlixJsonMember& m) { plix::ToString(m); },
         R"("key" must be a string, but is an object)"},
        {"a string for a number", R"("3")", [](const PlixJsonMember& m) { plix::ToInteger(m); },
         R"("key" must be a whole number, but is the string "3")"},
        {"an array for a number", "[]", [](const PlixJsonMember& m) { plix::ToInteger(m); },
         R"("key" must be a whole number, but is an array)"},
        {"too large a number", "2147483648", [](const PlixJsonMember& m) { plix::ToInteger(m); },
         R"("key" must be a whole number from -2147483648 to 2147483647, but is the number )"
         "2147483648"},
        {"a string for an object", R"("x")",
         [](const PlixJsonMember& m) { plix::RequireObject(m); },
         R"("key" must be an object, but is the string "x")"},
        {"a boolean for an object", "true", [](const PlixJsonMember& m) { plix::RequireObject(m); },
         R"("key" must be an object, but is true)"},
        {"a boolean for an array", "false", [](const PlixJsonMember& m) { plix::RequireArray(m); },
         R"("key" must be an array, but is false)"},
        {"an object for an array", "{}", [](const PlixJsonMember& m) { plix::RequireArray(m); },
         R"("key" must be an array, but is an object)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.behaviour);
        const Json::Value value = parsed(row.json);
        EXPECT_EQ(errorText([&] { row.convert({"key", value}); }), row.text);
    }
}

TEST(PlixJsonValue, LongTextsAreShortenedBetweenCharacters)
{
    const std::string smile = "\xF0\x9F\x98\x80"; // two UTF-16 units
    const struct {
        const char* behaviour;
        std::string text;
        std::string shown;
    } rows[] = {
        {"forty characters are shown", std::string(40, 'a'), std::string(40, 'a')},
        {"forty-one are not", std::string(41, 'a'), std::string(40, 'a') + "..."},
        {"a character that ends at the fortieth unit stays", std::string(38, 'a') + smile + "b",
         std::string(38, 'a') + smile + "..."},
        {"a character across the end is dropped", std::string(39, 'a') + smile + "b",
         std::string(39, 'a') + "..."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.behaviour);
        const Json::Value value(row.text);
        EXPECT_EQ(errorText([&] {
                      plix::ToInteger({"key", value});
                  }),
                  R"("key" must be a whole number, but is the string ")" + row.shown + '"');
    }
}

TEST(PlixJsonValue, TypeWords)
{
    const struct {
        const char* json;
        const char* word;
    } rows[] = {
        {R"({"type": "box"})", "box"},
        {R"({"type": "Box"})", "Box"},
        {R"({"type": ""})", ""},
        {R"({"type": 5})", ""},
        {R"({"type": true})", ""},
        {R"({"type": null})", ""},
        {R"({"type": ["box"]})", ""},
        {R"({"Type": "box"})", ""},
        {"{}", ""},
        {R"("box")", ""},
        {R"(["type"])", ""},
        {"5", ""},
        {"null", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.json);
        EXPECT_EQ(plix::TypeWord(parsed(row.json)), row.word);
    }
}

} // namespace
