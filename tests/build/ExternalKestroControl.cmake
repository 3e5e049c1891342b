# Installs our KestroControl as a host would its own, builds the library
# against that package, and sees that it really links it.
file(REMOVE_RECURSE ${SCRATCH})
execute_process(
    COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/prefix
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND ${CMAKE_COMMAND} -G Ninja -S ${SOURCE} -B ${SCRATCH}/build
        -DCMAKE_BUILD_TYPE=Debug -DPLIX_BUILD_TESTS=OFF -DPLIX_CACHE_DIR=${CACHE}
        -DPLIX_EXTERNAL_KESTRO_CONTROL=ON -DCMAKE_PREFIX_PATH=${SCRATCH}/prefix
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND ${CMAKE_COMMAND} --build ${SCRATCH}/build --target plix
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

if(EXISTS ${SCRATCH}/build/kestro_control)
    message(FATAL_ERROR "our own KestroControl was built all the same")
endif()
file(GET_RUNTIME_DEPENDENCIES
    LIBRARIES ${SCRATCH}/build/lib/libplix.so
    RESOLVED_DEPENDENCIES_VAR dependencies
    UNRESOLVED_DEPENDENCIES_VAR unresolved)
if(NOT dependencies MATCHES "${SCRATCH}/prefix/[^;]*KestroControl")
    message(FATAL_ERROR "libplix.so does not link the installed KestroControl: ${dependencies}")
endif()
