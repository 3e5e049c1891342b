// The built library when a host loads it at run time.
#include "HostChecks.h"
#include "SharedLibrary.h"

#include <gtest/gtest.h>

namespace {

TEST(LoadedLibrary, WorksWhenFunctionsAreLookedUpByName)
{
    const SharedLibrary library(PLIX_LIBRARY);
    ASSERT_TRUE(library.isLoaded());
    const HostExports exports = library.exports();
#define PLIX_EXPECT_FOUND(name) EXPECT_NE(exports.name, nullptr) << #name;
    PLIX_FOR_EACH_EXPORT(PLIX_EXPECT_FOUND)
#undef PLIX_EXPECT_FOUND
    ASSERT_FALSE(testing::Test::HasFailure());
    EXPECT_EQ(host::HostChecks(exports).run(), 0);
}

TEST(LoadedLibrary, ExportsNoOtherName)
{
    const SharedLibrary library(PLIX_LIBRARY);
    ASSERT_TRUE(library.isLoaded());
    for (const char* name : {"Plix_SetWriteLogCallback", "plix_free", "_Plix_Free",
                             "_ZTI11PlixDataMgr", "_ZN11PlixDataMgr8CreateUIEv", "YGNodeNew"}) {
        EXPECT_EQ(library.find<void (*)()>(name), nullptr) << name;
    }
}

} // namespace
