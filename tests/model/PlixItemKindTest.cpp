#include "model/PlixItemKind.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixItemKind, KnowsTheWordsOfTheFormat)
{
    const struct {
        const char* word;
        int kind;
    } rows[] = {{"bubble", 1}, {"image", 2},  {"box", 3},    {"text", 4},     {"icon", 5},
                {"button", 6}, {"spacer", 7}, {"filler", 8}, {"separator", 9}};
    for (const auto& row : rows)
        EXPECT_EQ(plix::ToItemKind(row.word), row.kind) << row.word;
}

TEST(PlixItemKind, AnyOtherWordIsNone)
{
    for (const char* word : {"", "Box", "BOX", "box ", " box", "boxes", "bo", "span", "header",
                             "hero", "body", "footer", "carousel", "3"})
        EXPECT_EQ(plix::ToItemKind(word), 0) << word;
    EXPECT_EQ(plix::ToItemKind(std::string("box\0", 4)), 0);
}

} // namespace
