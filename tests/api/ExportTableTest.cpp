// The built library exports the 21 functions and nothing else.
#include "ExportedSymbols.h"
#include "HostExports.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

const std::vector<std::string> kExports = {
    "Plix_CreateController",
    "Plix_CreateQGraphicsItem",
    "Plix_Free",
    "Plix_HasAction",
    "Plix_InitData",
    "Plix_InitSetFrom",
    "Plix_ModifyHeight",
    "Plix_RefreshLayout",
    "Plix_ResumeBubbleBkColor",
    "Plix_SetBotMentionHandleCallback",
    "Plix_SetBubbleBkColor",
    "Plix_SetClickCallBack",
    "Plix_SetCurrentLanguage",
    "Plix_SetDisplayParam",
    "Plix_SetDownloadCallBack",
    "Plix_SetDpi",
    "Plix_SetHighLightText",
    "Plix_SetMentionHandleCallback",
    "Plix_SetMultiLangGetCallback",
    "Plix_SetKestroControlSupport",
    "Plix_SetWiteLogCallback",
};

TEST(ExportTable, TheLibraryExportsThe21FunctionsOnly)
{
    std::vector<std::string> shown;
    for (const ExportedSymbol& symbol : exportedSymbols(PLIX_LIBRARY)) {
        EXPECT_TRUE(symbol.isFunction) << symbol.name;
        shown.push_back(symbol.name);
    }
    // The file has them in the order of a hash table or of the alphabet.
    std::sort(shown.begin(), shown.end());
    std::vector<std::string> expected = kExports;
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(expected.size(), 21U);
}

TEST(ExportTable, OrdinalsFollowTheOrderOfTheList)
{
    const std::vector<ExportedSymbol> symbols = exportedSymbols(PLIX_LIBRARY);
    ASSERT_FALSE(symbols.empty());
    for (const ExportedSymbol& symbol : symbols) {
#if defined(_WIN32)
        ASSERT_TRUE(symbol.ordinal.has_value()) << symbol.name;
        const auto place = std::find(kExports.begin(), kExports.end(), symbol.name);
        EXPECT_EQ(*symbol.ordinal, place - kExports.begin() + 1) << symbol.name;
#else
        EXPECT_FALSE(symbol.ordinal.has_value()) << symbol.name;
#endif
    }
}

TEST(ExportTable, TheListOfTheBuildHasTheSameOrder)
{
    std::ifstream file(PLIX_EXPORTS_FILE);
    const std::vector<std::string> listed {std::istream_iterator<std::string>(file), {}};
    EXPECT_EQ(listed, kExports);
}

TEST(ExportTable, TheHeaderDeclaresAllFunctions)
{
#define PLIX_NAME(name) #name,
    const std::vector<std::string> declared = {PLIX_FOR_EACH_EXPORT(PLIX_NAME)};
#undef PLIX_NAME
    EXPECT_EQ(declared, kExports);
}

} // namespace
