# Checks that sources of Yoga that were handed in are checked and copied, and that a
# failed fetch shows the words of npm.
#
# Runs itself with HANDED_IN and CACHE to prepare the sources.
include(${SOURCE}/cmake/yoga/Sources.cmake)
include(${SOURCE}/cmake/yoga/Changes.cmake)

if(DEFINED HANDED_IN)
    plix_find_yoga("${HANDED_IN}" "${CACHE}" sources)
    plix_copy_changed_yoga(${sources} ${SCRATCH}/copy)
    return()
endif()

# Sets `result` to 0 if the sources are prepared, and `errors`.
macro(prepare handed_in)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -DSOURCE=${SOURCE} -DSCRATCH=${SCRATCH} -DHANDED_IN=${handed_in}
                -DCACHE=${SCRATCH}/cache ${ARGN} -P ${CMAKE_CURRENT_LIST_FILE}
        RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
    # CMake breaks lines of messages.
    string(REGEX REPLACE "[ \n]+" " " errors "${errors}")
endmacro()

macro(expect_refusal words)
    if(NOT result OR NOT errors MATCHES "${words}")
        message(SEND_ERROR "expected the error \"${words}\", found \"${errors}\"")
    endif()
endmacro()

file(REMOVE_RECURSE ${SCRATCH})
set(package ${SCRATCH}/package)
file(COPY ${YOGA} DESTINATION ${package}/ReactCommon)
set(handed_in ${package}/ReactCommon/yoga)

foreach(folder IN ITEMS ${package} ${handed_in})
    file(REMOVE_RECURSE ${SCRATCH}/copy)
    prepare(${folder})
    if(result OR NOT EXISTS ${SCRATCH}/copy/yoga/algorithm/VisitLimit.h)
        message(SEND_ERROR "${folder} is not prepared: ${errors}")
    endif()
endforeach()
plix_yoga_checksum(${handed_in} sum)
if(NOT sum STREQUAL PLIX_YOGA_SHA256)
    message(SEND_ERROR "the sources that were handed in have changed")
endif()

# Files that already have their text are not written.
set(changed_file ${SCRATCH}/copy/yoga/node/LayoutResults.h)
execute_process(COMMAND touch -d @1 ${changed_file} COMMAND_ERROR_IS_FATAL ANY)
prepare(${package})
file(TIMESTAMP ${changed_file} time "%s" UTC)
if(NOT time EQUAL 1)
    message(SEND_ERROR "a file is written again although its text is the same")
endif()

file(APPEND ${handed_in}/yoga/Yoga.h "\n")
prepare(${package})
expect_refusal("does not hold exactly the sources of ")
file(REMOVE ${handed_in}/yoga/Yoga.h)
prepare(${package})
expect_refusal("There is no ${handed_in}/yoga/Yoga.h. PLIX_YOGA_DIR must be ")

# Like npm, it says nothing if it is told so.
file(WRITE ${SCRATCH}/npm [[
#!/bin/sh
case "$*" in *--silent*) ;; *) echo "npm error network is down" >&2 ;; esac
exit 7
]])
file(CHMOD ${SCRATCH}/npm PERMISSIONS OWNER_READ OWNER_EXECUTE)
prepare("" -DNPM=${SCRATCH}/npm)
expect_refusal("has not fetched the sources of Yoga .7.: npm error network is down .*PLIX_YOGA_DIR")
