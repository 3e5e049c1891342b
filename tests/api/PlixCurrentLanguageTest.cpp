#include "api/PlixCurrentLanguage.h"

#include <plix/Plix.h>

#include <gtest/gtest.h>

namespace {

// No fixture: nothing has set a language in this process yet.
TEST(PlixCurrentLanguage, IsEnglishUntilTheHostSetsAnother)
{
    EXPECT_EQ(GetCurrentLanguage(), "en");
}

TEST(PlixCurrentLanguage, IsWhatTheHostHasSet)
{
    std::string language = "zh-CN";
    Plix_SetCurrentLanguage(language);
    EXPECT_EQ(GetCurrentLanguage(), "zh-CN");
    language = "ko";
    EXPECT_EQ(GetCurrentLanguage(), "zh-CN") << "a copy";
    Plix_SetCurrentLanguage(GetCurrentLanguage());
    EXPECT_EQ(GetCurrentLanguage(), "zh-CN");
    Plix_SetCurrentLanguage("");
    EXPECT_EQ(GetCurrentLanguage(), "");
    Plix_SetCurrentLanguage("en");
}

} // namespace
