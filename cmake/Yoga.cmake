# Yoga, the layout engine, as the target `plix_yoga`.
#
# The sources are those of an npm package of a fixed version and checksum
# (yoga/Sources.cmake). They are copied into the build and changed there
# (yoga/Changes.cmake).
option(PLIX_SYSTEM_YOGA
       "Use the installed yoga package, which lacks our changes: a small card may then freeze its host"
       OFF)
add_library(plix_yoga INTERFACE)

if(PLIX_SYSTEM_YOGA)
    find_package(yoga CONFIG REQUIRED)
    target_link_libraries(plix_yoga INTERFACE yoga::yogacore)
    return()
endif()

include(${CMAKE_CURRENT_LIST_DIR}/yoga/Sources.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/yoga/Changes.cmake)

set(PLIX_YOGA_DIR "" CACHE PATH
    "The unpacked npm package ${PLIX_YOGA_PACKAGE} ${PLIX_YOGA_VERSION}; npm fetches it if this is empty")
set(PLIX_CACHE_DIR ${PROJECT_BINARY_DIR}/cache CACHE PATH "Where fetched sources are kept")

plix_find_yoga("${PLIX_YOGA_DIR}" ${PLIX_CACHE_DIR} PLIX_YOGA_SOURCES)
set(yoga_copy ${PROJECT_BINARY_DIR}/yoga-sources)
plix_copy_changed_yoga(${PLIX_YOGA_SOURCES} ${yoga_copy})

add_subdirectory(${yoga_copy}/yoga ${PROJECT_BINARY_DIR}/yoga EXCLUDE_FROM_ALL SYSTEM)
# Yoga's own build uses link-time optimisation and treats warnings as errors. The first
# would make linking our objects very slow, the second fails with new compilers.
set_target_properties(yogacore PROPERTIES INTERPROCEDURAL_OPTIMIZATION OFF UNITY_BUILD OFF)
target_compile_options(yogacore PRIVATE $<IF:$<CXX_COMPILER_ID:MSVC>,/WX-,-Wno-error>)
target_link_libraries(plix_yoga INTERFACE yogacore)
