# Uses our installed KestroControl like one of a host: compiles the sources that use it
# with the headers of that package, and checks that the library is linked with it.
file(REMOVE_RECURSE ${SCRATCH})

# The target platform, as in the build that runs this test.
file(STRINGS ${BUILD}/CMakeCache.txt target REGEX "^CMAKE_(TOOLCHAIN_FILE|FIND_ROOT_PATH):")
set(target_options "")
foreach(entry IN LISTS target)
    string(REPLACE ";" "\\;" entry "${entry}") # a list of folders is one argument
    list(APPEND target_options "-D${entry}")
endforeach()
execute_process(
    COMMAND ${CMAKE_COMMAND} -G Ninja -S ${SOURCE} -B ${SCRATCH}/build
        -DCMAKE_BUILD_TYPE=Check -DCMAKE_CXX_FLAGS_CHECK=-fsyntax-only
        -DPLIX_BUILD_TESTS=OFF -DPLIX_CACHE_DIR=${CACHE}
        -DPLIX_EXTERNAL_KESTRO_CONTROL=ON
        -DKestroControl_DIR=${PREFIX}/${LIBRARY_FOLDER}/cmake/KestroControl ${target_options}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
if(EXISTS ${SCRATCH}/build/kestro_control)
    message(FATAL_ERROR "our own KestroControl is part of the build nevertheless")
endif()

# The other sources do not include its headers, and compiling them would take
# most of the time of all tests.
set(objects "")
foreach(source IN ITEMS api/PlixExports ui/PlixBubbleUI ui/PlixButtonUI ui/PlixUICreater
        ui/accessibility/PlixAccessibility ui/text/PlixTextUI)
    list(APPEND objects CMakeFiles/plix_objects.dir/${source}.cpp${OBJECT_SUFFIX})
endforeach()
execute_process(
    COMMAND ${CMAKE_COMMAND} --build ${SCRATCH}/build --target ${objects}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

execute_process(
    COMMAND ${NINJA} -C ${SCRATCH}/build -t query ${LIBRARY}
    OUTPUT_VARIABLE inputs COMMAND_ERROR_IS_FATAL ANY)
if(NOT inputs MATCHES "${PREFIX}/[^\n]*KestroControl")
    message(FATAL_ERROR "${LIBRARY} is not linked with the installed KestroControl: ${inputs}")
endif()
