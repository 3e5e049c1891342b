# CTest reads this before it runs. Each suite of a test program becomes one test: starting
# a program takes longer than most cases, so not each case.

# plix_add_suites(NAME PROGRAM FOLDER LAUNCHER ENVIRONMENT): adds the suites of PROGRAM
# as NAME.Suite. They run in FOLDER. LAUNCHER, if not empty, starts programs of another
# system.
function(plix_add_suites name program folder launcher environment)
    execute_process(
        COMMAND ${launcher} ${program} --gtest_list_tests
        WORKING_DIRECTORY ${folder}
        RESULT_VARIABLE status
        OUTPUT_VARIABLE list)
    if(NOT status EQUAL 0)
        # This test cannot run, so it fails.
        add_test(${name}.CannotListItsSuites ${program}-cannot-list-its-suites)
        return()
    endif()
    # Lines that begin with a blank are the cases of the suite above them.
    string(REGEX MATCHALL "(^|\n)[^ \n]+\\.[ \r]*(#[^\n]*)?\n" lines "${list}")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "\n?([^ \n]+)\\..*" "\\1" suite "${line}")
        add_test(${name}.${suite} ${launcher} ${program} "--gtest_filter=${suite}.*")
        set_tests_properties(${name}.${suite} PROPERTIES
            WORKING_DIRECTORY ${folder} TIMEOUT 600 ENVIRONMENT "${environment}")
    endforeach()
endfunction()
