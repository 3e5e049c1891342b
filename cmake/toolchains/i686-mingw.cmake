# 32-bit x86 Windows, built with Debian's MinGW-w64. Its compiler has two variants. Only
# "posix" supports the threads of the C++ standard library.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER i686-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)

# Libraries and packages of the target only, programs of this machine only.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The stack of the main thread is as large as in most Windows programs, so that the tests
# do not have a larger one than a host.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,--stack,0x100000")
