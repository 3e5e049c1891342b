#include "model/PlixActionKind.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixActionKind, KnowsTheWordsOfTheFormat)
{
    const struct {
        const char* word;
        int kind;
    } rows[] = {{"message", 1}, {"uri", 2}, {"postback", 3}};
    for (const auto& row : rows)
        EXPECT_EQ(plix::ToActionKind(row.word), row.kind) << row.word;
}

TEST(PlixActionKind, AnyOtherWordIsNone)
{
    for (const char* word : {"", "Uri", "URI", "uri ", "url", "Message", "postBack", "datetime"})
        EXPECT_EQ(plix::ToActionKind(word), 0) << word;
}

} // namespace
