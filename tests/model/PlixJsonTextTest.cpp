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

} // namespace
} // namespace plix::test
