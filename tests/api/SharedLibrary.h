#pragma once

#include "HostExports.h"

// The built library, loaded at run time and asked by name, as a host does it.
// It stays loaded until the process ends: Qt's type registrations cannot be
// taken back.
class SharedLibrary {
public:
    explicit SharedLibrary(const char* path);

    bool isLoaded() const { return handle_ != nullptr; }

    // Null when the library shows nothing of that name.
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
