# The sources of Yoga: the folder ReactCommon/yoga of an npm package of a fixed version.
# They are fetched or handed in, and never changed where they are.
set(PLIX_YOGA_PACKAGE react-native)
set(PLIX_YOGA_VERSION 0.88.1)
string(CONCAT PLIX_YOGA_ARCHIVE_SHA512
    c1a8d670b67ddc608dee4e14c21e024b82f6021f2885cbe43979ef2189a1e18b
    eeaa1a398f700f67daa8ccafa742b1d64a06aeab887c0f71cde4328af384ab1c)
# What plix_yoga_checksum() says of the sources.
set(PLIX_YOGA_SHA256 699919c9d5b6357b16cc75870878e7ec20fb6a486426530dfb955ceb5546a75c)

# The files that the build reads.
function(plix_list_yoga folder result)
    file(GLOB_RECURSE files RELATIVE ${folder}
        ${folder}/yoga/*.h ${folder}/yoga/*.cpp ${folder}/yoga/CMakeLists.txt
        ${folder}/cmake/project-defaults.cmake)
    set(${result} ${files} PARENT_SCOPE)
endfunction()

# The checksum of all these files and their names: that of the output of sha256sum.
function(plix_yoga_checksum folder result)
    plix_list_yoga(${folder} files)
    set(lines "")
    foreach(file IN LISTS files)
        file(SHA256 ${folder}/${file} sum)
        string(APPEND lines "${sum}  ${file}\n")
    endforeach()
    string(SHA256 sum "${lines}")
    set(${result} ${sum} PARENT_SCOPE)
endfunction()

# Unpacks into a scratch folder and moves that to its place when it is complete, so an
# interrupted run leaves nothing half done.
function(plix_fetch_yoga folder)
    find_program(NPM npm)
    if(NOT NPM)
        message(FATAL_ERROR
            "npm, which fetches the sources of Yoga, is not installed. Install it, or set "
            "PLIX_YOGA_DIR to the unpacked npm package ${PLIX_YOGA_PACKAGE} ${PLIX_YOGA_VERSION}.")
    endif()
    set(scratch ${folder}.part)
    file(REMOVE_RECURSE ${scratch})
    file(MAKE_DIRECTORY ${scratch})
    message(STATUS "Fetching Yoga (${PLIX_YOGA_PACKAGE} ${PLIX_YOGA_VERSION})")
    # Without an error, npm would print the names of all files in the package.
    execute_process(
        COMMAND ${NPM} pack --loglevel=error ${PLIX_YOGA_PACKAGE}@${PLIX_YOGA_VERSION}
        WORKING_DIRECTORY ${scratch}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR
            "npm has not fetched the sources of Yoga (${result}):\n${output}\n"
            "Without npm, set PLIX_YOGA_DIR to the unpacked npm package ${PLIX_YOGA_PACKAGE} "
            "${PLIX_YOGA_VERSION}.")
    endif()
    set(archive ${scratch}/${PLIX_YOGA_PACKAGE}-${PLIX_YOGA_VERSION}.tgz)
    file(SHA512 ${archive} sum)
    if(NOT sum STREQUAL PLIX_YOGA_ARCHIVE_SHA512)
        message(FATAL_ERROR "${archive} has the SHA-512 ${sum}, not the pinned one")
    endif()
    file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${scratch}
        PATTERNS package/ReactCommon/yoga/*)
    file(REMOVE ${archive})
    file(REMOVE_RECURSE ${folder})
    file(RENAME ${scratch} ${folder})
endfunction()

# The fetched sources in the cache; fetches them if they are missing or not whole.
function(plix_find_fetched_yoga cache result)
    set(package ${cache}/yoga-${PLIX_YOGA_VERSION})
    set(sources ${package}/package/ReactCommon/yoga)
    plix_yoga_checksum(${sources} sum)
    if(NOT sum STREQUAL PLIX_YOGA_SHA256)
        plix_fetch_yoga(${package})
    endif()
    set(${result} ${sources} PARENT_SCOPE)
endfunction()

# The sources in a folder that was handed in: the unpacked package, or its folder
# ReactCommon/yoga.
function(plix_find_handed_in_yoga folder result)
    set(sources ${folder})
    if(EXISTS ${folder}/ReactCommon/yoga)
        set(sources ${folder}/ReactCommon/yoga)
    endif()
    if(NOT EXISTS ${sources}/yoga/Yoga.h)
        message(FATAL_ERROR
            "There is no ${sources}/yoga/Yoga.h. PLIX_YOGA_DIR must be the unpacked npm package "
            "${PLIX_YOGA_PACKAGE} ${PLIX_YOGA_VERSION}, or its folder ReactCommon/yoga.")
    endif()
    set(${result} ${sources} PARENT_SCOPE)
endfunction()

function(plix_check_yoga sources)
    plix_yoga_checksum(${sources} sum)
    if(NOT sum STREQUAL PLIX_YOGA_SHA256)
        message(FATAL_ERROR
            "${sources} does not hold exactly the sources of ${PLIX_YOGA_PACKAGE} "
            "${PLIX_YOGA_VERSION}: their checksum is ${sum}, not the pinned one.")
    endif()
endfunction()

# plix_find_yoga(HANDED_IN CACHE RESULT): the folder of the sources, which are the pinned
# ones. Without a folder HANDED_IN, they are fetched into CACHE.
function(plix_find_yoga handed_in cache result)
    if(handed_in)
        plix_find_handed_in_yoga(${handed_in} sources)
    else()
        plix_find_fetched_yoga(${cache} sources)
    endif()
    plix_check_yoga(${sources})
    set(${result} ${sources} PARENT_SCOPE)
endfunction()
