# Builds the minimal host with find_package() against the installed package, and runs it.
include(${CMAKE_CURRENT_LIST_DIR}/HostRun.cmake)

file(REMOVE_RECURSE ${SCRATCH})
# C++17: the library itself needs C++20, its headers do not.
execute_process(
    COMMAND ${CMAKE_COMMAND} -G Ninja -S ${EXAMPLES}/minimal_host -B ${SCRATCH}
        -DCMAKE_PREFIX_PATH=${PREFIX} -DCMAKE_CXX_STANDARD=17
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_EXE_LINKER_FLAGS_RELEASE=${PROBE}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND ${CMAKE_COMMAND} --build ${SCRATCH}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
expect_card(${SCRATCH}/minimal_host)

execute_process(COMMAND ${PREFIX}/bin/plix --version
    OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
if(NOT version STREQUAL "plix ${VERSION}\n")
    message(SEND_ERROR "the installed tool says that it is \"${version}\"")
endif()
