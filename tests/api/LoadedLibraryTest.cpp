// The built library as a host loads it at run time.
#include "HostDrive.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace {

class LoadedLibrary : public testing::Test {
protected:
    LoadedLibrary()
        : library_(dlopen(PLIX_LIBRARY, RTLD_NOW | RTLD_LOCAL))
    {
        EXPECT_NE(library_, nullptr) << dlerror();
    }

    template <typename Function> Function find(const char* name)
    {
        void* const symbol = dlsym(library_, name);
        EXPECT_NE(symbol, nullptr) << name;
        return reinterpret_cast<Function>(symbol);
    }

private:
    // Stays loaded: Qt's type registrations cannot be taken back.
    void* library_;
};

TEST_F(LoadedLibrary, WorksByNamesAlone)
{
#define PLIX_LOOKUP(name) find<decltype(HostExports::name)>(#name),
    const HostExports exports {PLIX_FOR_EACH_EXPORT(PLIX_LOOKUP)};
#undef PLIX_LOOKUP
    ASSERT_FALSE(HasFailure());
    EXPECT_EQ(host::Drive(exports).run(), 0);
}

TEST_F(LoadedLibrary, FindsNothingElseByName)
{
    for (const char* name : {"Plix_SetWriteLogCallback", "plix_free", "_ZTI11PlixDataMgr",
                             "_ZN11PlixDataMgr8CreateUIEv", "YGNodeNew"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(dlsym(dlopen(PLIX_LIBRARY, RTLD_NOW | RTLD_NOLOAD), name), nullptr);
    }
}

} // namespace
