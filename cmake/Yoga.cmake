# Yoga, the layout engine, as the target `plix_yoga`.
#
# The sources come from an npm package of a fixed version and checksum. They are unpacked
# into build/cache, which all presets share, and changed there (yoga/Changes.cmake).
option(PLIX_SYSTEM_YOGA
       "Use the installed yoga package, which lacks our changes: a small card may then freeze its host"
       OFF)
add_library(plix_yoga INTERFACE)

if(PLIX_SYSTEM_YOGA)
    find_package(yoga CONFIG REQUIRED)
    target_link_libraries(plix_yoga INTERFACE yoga::yogacore)
    return()
endif()

include(${CMAKE_CURRENT_LIST_DIR}/yoga/Changes.cmake)

set(PLIX_YOGA_PACKAGE react-native)
set(PLIX_YOGA_VERSION 0.88.1)
string(CONCAT PLIX_YOGA_SHA512
    c1a8d670b67ddc608dee4e14c21e024b82f6021f2885cbe43979ef2189a1e18b
    eeaa1a398f700f67daa8ccafa742b1d64a06aeab887c0f71cde4328af384ab1c)
set(PLIX_CACHE_DIR ${PROJECT_SOURCE_DIR}/build/cache CACHE PATH "Where downloaded sources are kept")
set(yoga_dir ${PLIX_CACHE_DIR}/yoga-${PLIX_YOGA_VERSION})
set(yoga_subdir package/ReactCommon/yoga)

# Unpacks into a scratch folder and moves that to its place when it is complete, so an
# interrupted run is not mistaken for a finished one.
function(plix_fetch_yoga)
    find_program(NPM npm REQUIRED)
    set(scratch ${yoga_dir}.part)
    file(REMOVE_RECURSE ${scratch})
    file(MAKE_DIRECTORY ${scratch})
    message(STATUS "Fetching Yoga (${PLIX_YOGA_PACKAGE} ${PLIX_YOGA_VERSION})")
    execute_process(
        COMMAND ${NPM} pack --silent ${PLIX_YOGA_PACKAGE}@${PLIX_YOGA_VERSION}
        WORKING_DIRECTORY ${scratch}
        OUTPUT_VARIABLE archive OUTPUT_STRIP_TRAILING_WHITESPACE
        COMMAND_ERROR_IS_FATAL ANY)
    set(archive ${scratch}/${PLIX_YOGA_PACKAGE}-${PLIX_YOGA_VERSION}.tgz)
    file(SHA512 ${archive} sum)
    if(NOT sum STREQUAL PLIX_YOGA_SHA512)
        message(FATAL_ERROR "${archive} has the SHA-512 ${sum}, not the pinned one")
    endif()
    file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${scratch} PATTERNS ${yoga_subdir}/* package/LICENSE)
    file(REMOVE ${archive})
    file(REMOVE_RECURSE ${yoga_dir})
    file(RENAME ${scratch} ${yoga_dir})
endfunction()

if(NOT EXISTS ${yoga_dir}/${yoga_subdir}/yoga/Yoga.h OR NOT EXISTS ${yoga_dir}/package/LICENSE)
    plix_fetch_yoga()
endif()
plix_change_yoga(${yoga_dir}/${yoga_subdir}/yoga)

add_subdirectory(${yoga_dir}/${yoga_subdir}/yoga ${PROJECT_BINARY_DIR}/yoga EXCLUDE_FROM_ALL SYSTEM)
# Yoga's own build uses link-time optimisation and treats warnings as errors. The first
# would make linking our objects very slow, the second fails with new compilers.
set_target_properties(yogacore PROPERTIES INTERPROCEDURAL_OPTIMIZATION OFF)
target_compile_options(yogacore PRIVATE $<IF:$<CXX_COMPILER_ID:MSVC>,/WX-,-Wno-error>)
target_link_libraries(plix_yoga INTERFACE yogacore)
