# Builds the minimal host with pkg-config against the installed package, and runs it.
include(${CMAKE_CURRENT_LIST_DIR}/HostRun.cmake)

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})
set(ENV{PKG_CONFIG_PATH} ${PREFIX}/${LIBRARY_FOLDER}/pkgconfig)
execute_process(COMMAND ${PKG_CONFIG} --cflags --libs plix
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(
    COMMAND ${COMPILER} -std=c++17 -fPIC ${EXAMPLES}/minimal_host/main.cpp ${PROBE}
        -o ${SCRATCH}/minimal_host ${flags} -Wl,-rpath,${PREFIX}/${LIBRARY_FOLDER}
    COMMAND_ERROR_IS_FATAL ANY)
expect_card(${SCRATCH}/minimal_host)
