#include "model/PlixJsonText.h"

#include "support/ForeignNumbers.h"

#include <gtest/gtest.h>

namespace plix::test {
namespace {

const char kNumbers[] = R"({"a": 2.5, "b": -1234.5e1, "c": 1.500, "d": 0.001, "e": 1e3,
    "f": 123456789012345678901234567890, "g": 1234567.125, "h": 12, "i": -0.25E+2, "j": "1.5"})";

TEST(PlixJsonText, HasTheSameValueInEveryLocale)
{
    const Json::Value expected = ReadJsonText(kNumbers);
    ASSERT_EQ(expected.size(), 10U);
    EXPECT_EQ(expected["a"].asDouble(), 2.5);
    EXPECT_EQ(expected["g"].asDouble(), 1234567.125);
    const struct {
        char point;
        char separator;
        const char* grouping;
    } locales[] = {{',', '.', "\3"},  {',', '.', ""},   {',', ' ', "\3"},    {'.', ',', "\3\2"},
                   {'\'', ',', "\1"}, {'.', '.', "\3"}, {';', '.', "\3\3\3"}};
    for (const auto& row : locales) {
        const ForeignNumbers numbers(row.point, row.separator, row.grouping);
        EXPECT_EQ(ReadJsonText(kNumbers), expected) << row.point << row.separator;
    }
}

TEST(PlixJsonText, CommentsAreSkippedAndNotKept)
{
    const Json::Value value =
        ReadJsonText("// before\n{ // after\n\"a\": /* before */ 1 /* after */ }");
    EXPECT_EQ(value["a"].asInt(), 1);
    for (const auto place :
         {Json::commentBefore, Json::commentAfterOnSameLine, Json::commentAfter}) {
        EXPECT_FALSE(value.hasComment(place)) << place;
        EXPECT_FALSE(value["a"].hasComment(place)) << place;
    }
}

// Collecting these would take ten minutes.
TEST(PlixJsonText, MayHaveVeryManyComments)
{
    std::string comments;
    for (int i = 0; i < 640'000; ++i)
        comments += "/**/";
    // After a value: there the parser checks whether each is on the same line.
    EXPECT_EQ(ReadJsonText(R"({"a": 1, )" + comments + R"("b": 2})")["b"].asInt(), 2);
}

TEST(PlixJsonText, TextBeforeAnErrorIsRead)
{
    const Json::Value value = ReadJsonText(R"({"a": 1.5, "b": [1, 2], "c" "d": 3})");
    EXPECT_EQ(value["a"].asDouble(), 1.5);
    EXPECT_EQ(value["b"].size(), 2U);
    EXPECT_FALSE(value.isMember("d"));
}

TEST(PlixJsonText, MayBeginWithOneByteOrderMark)
{
    const std::string mark = "\xEF\xBB\xBF";
    EXPECT_EQ(ReadJsonText(mark + R"({"a": 1})")["a"].asInt(), 1);
    EXPECT_EQ(ReadJsonText(mark + R"({"a": 1.5})")["a"].asDouble(), 1.5);
    EXPECT_TRUE(ReadJsonText(mark + mark + R"({"a": 1})").isNull());
    EXPECT_TRUE(ReadJsonText(mark).isNull());
    EXPECT_TRUE(ReadJsonText(mark.substr(0, 2) + R"({"a": 1})").isNull());
    EXPECT_EQ(ReadJsonText(R"({"a": ")" + mark + R"("})")["a"].asString(), mark);
}

TEST(PlixJsonText, EndsWithTheFirstValue)
{
    for (const char* more : {" {\"a\": 2}", "}", "]", ",", " text", "\"", "{", "[[[[", "// {"})
        EXPECT_EQ(ReadJsonText(std::string(R"({"a": 1})") + more)["a"].asInt(), 1) << more;
    EXPECT_EQ(ReadJsonText(std::string("{\"a\": 1}\0{", 10))["a"].asInt(), 1);
}

TEST(PlixJsonText, TakesTheLastOfTwoMembersWithOneName)
{
    const Json::Value value = ReadJsonText(R"({"a": 1, "b": {"c": 1}, "a": 2, "b": {"d": 1}})");
    EXPECT_EQ(value["a"].asInt(), 2);
    EXPECT_FALSE(value["b"].isMember("c"));
    EXPECT_TRUE(value["b"].isMember("d"));
}

struct StringRow {
    const char* name;
    std::string json;
    std::string value;
};

TEST(PlixJsonText, KeepsTheBytesOfStrings)
{
    const StringRow rows[] = {
        {"control characters", "\x01\b\t\n\x1b\x7f", "\x01\b\t\n\x1b\x7f"},
        {"zero", std::string("a\0b", 3), std::string("a\0b", 3)},
        {"escaped zero", R"(a\u0000b)", std::string("a\0b", 3)},
        {"byte of no character", "a\xff\xfe", "a\xff\xfe"},
        {"unfinished character", "a\xe2\x82", "a\xe2\x82"},
        {"longer than needed", "\xc0\xaf", "\xc0\xaf"},
        {"surrogate as UTF-8", "\xed\xa0\xbd", "\xed\xa0\xbd"},
        {"beyond Unicode", "\xf5\x90\x80\x80", "\xf5\x90\x80\x80"},
        {"half a pair", R"(a\ud83d)", "a\xef\xbf\xbd"},
        {"other half", R"(\ude00b)",
         "\xef\xbf\xbd"
         "b"},
        {"pair", R"(\ud83d\ude00)", "\xf0\x9f\x98\x80"},
        {"real number in front of half a pair", R"(", "c": 1.5, "a": "\ud83d)", "\xef\xbf\xbd"},
    };
    for (const StringRow& row : rows) {
        const Json::Value value = ReadJsonText(R"({"a": ")" + row.json + R"(", "b": 1})");
        EXPECT_EQ(value["a"].asString(), row.value) << row.name;
        EXPECT_EQ(value["b"].asInt(), 1) << row.name;
    }
}

} // namespace
} // namespace plix::test
