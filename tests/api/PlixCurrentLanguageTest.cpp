#include "api/PlixCurrentLanguage.h"

#include <plix/Plix.h>

#include <gtest/gtest.h>

namespace {

// No fixture: nothing has set a language in this process yet.
TEST(PlixCurrentLanguage, IsEnglishUntilTheHostSetsAnother)
{
    EXPECT_EQ(plix::GetCurrentLanguage(), "en");
}

TEST(PlixCurrentLanguage, IsACopyOfWhatTheHostSets)
{
    std::string language = "zh-CN";
    Plix_SetCurrentLanguage(language);
    EXPECT_EQ(plix::GetCurrentLanguage(), "zh-CN");
    language = "ko";
    EXPECT_EQ(plix::GetCurrentLanguage(), "zh-CN") << "a copy";
    Plix_SetCurrentLanguage(plix::GetCurrentLanguage());
    EXPECT_EQ(plix::GetCurrentLanguage(), "zh-CN");
    Plix_SetCurrentLanguage("");
    EXPECT_EQ(plix::GetCurrentLanguage(), "");
    Plix_SetCurrentLanguage("en");
}

} // namespace
