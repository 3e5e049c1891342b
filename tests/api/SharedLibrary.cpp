#include "SharedLibrary.h"

#if defined(_WIN32)

#include <windows.h>

SharedLibrary::SharedLibrary(const char* path)
    : handle_(LoadLibraryA(path))
{
}

SharedLibrary::Address SharedLibrary::address(const char* name) const
{
    return reinterpret_cast<Address>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

#else

#include <dlfcn.h>

SharedLibrary::SharedLibrary(const char* path)
    : handle_(dlopen(path, RTLD_NOW | RTLD_LOCAL))
{
}

SharedLibrary::Address SharedLibrary::address(const char* name) const
{
    return reinterpret_cast<Address>(dlsym(handle_, name));
}

#endif
