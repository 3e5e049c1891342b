#include "model/PlixLanguageText.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixLanguageMap, FindsTextsByExactCode)
{
    const PlixLanguageMap map {{{"en", "Yes"}, {"ko", ""}}};
    EXPECT_TRUE(map.Contains("en"));
    EXPECT_EQ(map.Get("en"), "Yes");
    EXPECT_TRUE(map.Contains("ko"));
    EXPECT_EQ(map.Get("ko"), "");
    EXPECT_FALSE(map.Contains("EN"));
    EXPECT_EQ(map.Get("EN"), "");
    EXPECT_FALSE(map.Contains(""));
}

TEST(PlixLanguageText, ChoosesTheLanguageThenTheDefaultThenThePlainText)
{
    const PlixLanguageMap all {{{"en", "Yes"}, {"default", "Any"}}};
    const PlixLanguageMap emptyVariant {{{"en", ""}, {"default", "Any"}}};
    const PlixLanguageMap emptyDefault {{{"default", ""}}};
    const struct {
        const char* behaviour;
        const PlixLanguageMap& variants;
        const char* language;
        const char* expected;
    } rows[] = {
        {"the language", all, "en", "Yes"},
        {"the default", all, "ko", "Any"},
        {"by case", all, "EN", "Any"},
        {"no language", all, "", "Any"},
        {"an empty variant counts", emptyVariant, "en", ""},
        {"an empty default counts", emptyDefault, "en", ""},
        {"neither", PlixLanguageMap(), "en", "plain"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(plix::ChooseText(row.variants, row.language, "plain"), row.expected)
            << row.behaviour;
}

} // namespace
