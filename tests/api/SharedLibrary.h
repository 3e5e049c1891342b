#pragma once

#include "HostExports.h"

// The built library, loaded at run time, with functions looked up by name. It stays
// loaded until the process ends: Qt's type registrations cannot be undone.
class SharedLibrary {
public:
    explicit SharedLibrary(const char* path);

    bool isLoaded() const { return handle_ != nullptr; }

    // Null if the library exports nothing of that name.
    template <typename Function> Function find(const char* name) const
    {
        return reinterpret_cast<Function>(address(name));
    }

    HostExports exports() const
    {
#define PLIX_LOOKUP(name) find<decltype(HostExports::name)>(#name),
        return {PLIX_FOR_EACH_EXPORT(PLIX_LOOKUP)};
#undef PLIX_LOOKUP
    }

private:
    using Address = void (*)();

    Address address(const char* name) const;

    void* handle_;
};
