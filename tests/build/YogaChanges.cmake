# Checks that plix_change() changes the text of a source, and fails if the text is not
# there exactly once.
#
# Runs itself with FILE, OLD and NEW for each change.
include(${SOURCE}/cmake/yoga/Changes.cmake)

if(DEFINED FILE)
    plix_change(${FILE} "${OLD}" "size = ${NEW};")
    return()
endif()

set(file ${SCRATCH}/source.h)

# Sets RESULT to 0 if the change succeeds.
macro(change old new)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -DSOURCE=${SOURCE} -DFILE=${file} "-DOLD=${old}" -DNEW=${new}
                -P ${CMAKE_CURRENT_LIST_FILE}
        RESULT_VARIABLE RESULT OUTPUT_QUIET ERROR_QUIET)
endmacro()

function(expect_text wanted)
    file(READ ${file} text)
    if(NOT text STREQUAL wanted)
        message(SEND_ERROR "expected \"${wanted}\", found \"${text}\"")
    endif()
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
file(WRITE ${file} "int a[2];\n\tint size = 8; // \\ ; [\nint b;\n")

change("size = 8;" 16)
if(RESULT)
    message(SEND_ERROR "the change failed")
endif()
expect_text("int a[2];\n\tint size = 16; // \\ ; [\nint b;\n")

foreach(old IN ITEMS "size = 8;" "int ")
    change("${old}" 64)
    if(NOT RESULT)
        message(SEND_ERROR "\"${old}\", which is not there exactly once, was changed")
    endif()
    expect_text("int a[2];\n\tint size = 16; // \\ ; [\nint b;\n")
endforeach()
