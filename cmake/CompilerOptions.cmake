# Warnings for our own code, and sanitizers for all code.
add_library(plix_options INTERFACE)

if(MSVC)
    target_compile_options(plix_options INTERFACE /W4 /permissive- /utf-8 /EHsc)
    if(PLIX_WARNINGS_AS_ERRORS)
        target_compile_options(plix_options INTERFACE /WX)
    endif()
else()
    target_compile_options(plix_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
        -Wconversion -Wsign-conversion -Wold-style-cast)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION MATCHES "^12\\.")
        # GCC 12 warns of overlaps in assignments to a std::string where there are none. For
        # 32 bits, it believes that an empty std::optional is read.
        target_compile_options(plix_options INTERFACE
            -Wno-restrict $<$<EQUAL:${CMAKE_SIZEOF_VOID_P},4>:-Wno-maybe-uninitialized>)
    endif()
    if(PLIX_WARNINGS_AS_ERRORS)
        target_compile_options(plix_options INTERFACE -Werror)
    endif()
endif()
target_compile_definitions(plix_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_DEPRECATED_WARNINGS)

# Calls of Qt jump to the addresses that the loader has found, without the linker's stubs
# between. This takes 2 % off reading and building a card.
function(plix_call_without_stubs target)
    if(UNIX AND NOT APPLE)
        target_compile_options(${target} PRIVATE -fno-plt)
    endif()
endfunction()

if(PLIX_SANITIZE)
    # For every object of the build, including Yoga: an error in one of our callbacks may
    # only be visible there.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
