#include "model/PlixJsonSurrogates.h"

#include <gtest/gtest.h>

#include <string>

namespace plix::test {
namespace {

struct Row {
    const char* json;
    const char* rewritten;
};

TEST(PlixJsonSurrogates, OfWhichTheOtherHalfIsMissingAreReplaced)
{
    const Row rows[] = {
        {R"("\ud83d")", R"("\uFFFD")"},
        {R"("\uD83D")", R"("\uFFFD")"},
        {R"("\ude00")", R"("\uFFFD")"},
        {R"("a\ud83db")", R"("a\uFFFDb")"},
        {R"("\ud83d\ud83d\ude00")", R"("\uFFFD\ud83d\ude00")"},
        {R"("\ude00\ud83d")", R"("\uFFFD\uFFFD")"},
        {R"("\ud83d\ude00\ude00")", R"("\ud83d\ude00\uFFFD")"},
        {R"("\ud83d\n")", R"("\uFFFD\n")"},
        {R"("\ud83d\u0041")", R"("\uFFFD\u0041")"},
        {R"("\ud83d\\ude00")", R"("\uFFFD\\ude00")"},
        {R"("\\\ud83d")", R"("\\\uFFFD")"},
        {R"("\ud800\udbff\udc00\udfff")", R"("\uFFFD\udbff\udc00\uFFFD")"},
    };
    for (const Row& row : rows) {
        EXPECT_TRUE(MayHaveSurrogates(row.json)) << row.json;
        EXPECT_EQ(WithoutLoneSurrogates(row.json), row.rewritten) << row.json;
    }
}

TEST(PlixJsonSurrogates, OthersStayAsTheyAre)
{
    for (const std::string json :
         {"", "{}", R"("\ud83d\ude00")", R"("\uD83D\uDE00 \ud83d\ude00")", R"("\\ud83d")",
          R"("\\\\ud83d")", R"("\ud7ff\ue000")", R"("ud83d")", R"("\ud83")", R"("\ud83x")",
          R"("\ud83)", R"("\ud)", R"("\)", R"("\u)", "\\"})
        EXPECT_EQ(WithoutLoneSurrogates(json), json) << json;
}

TEST(PlixJsonSurrogates, AreNotLookedForInOrdinaryCards)
{
    EXPECT_FALSE(MayHaveSurrogates(R"({"text": "\u00e4\n\\ 😀"})"));
}

} // namespace
} // namespace plix::test
