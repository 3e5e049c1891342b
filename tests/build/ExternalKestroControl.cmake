# Installs our KestroControl as a host would its own, builds the library
# against that package, and sees that it really links it.
file(REMOVE_RECURSE ${SCRATCH})
execute_process(
    COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/prefix
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

# What the build around this test is for.
file(STRINGS ${BUILD}/CMakeCache.txt target REGEX "^CMAKE_(TOOLCHAIN_FILE|FIND_ROOT_PATH):")
set(target_options "")
foreach(entry IN LISTS target)
    string(REPLACE ";" "\\;" entry "${entry}") # a list of folders is one argument
    list(APPEND target_options "-D${entry}")
endforeach()
execute_process(
    COMMAND ${CMAKE_COMMAND} -G Ninja -S ${SOURCE} -B ${SCRATCH}/build
        -DCMAKE_BUILD_TYPE=Debug -DPLIX_BUILD_TESTS=OFF -DPLIX_CACHE_DIR=${CACHE}
        -DPLIX_EXTERNAL_KESTRO_CONTROL=ON
        -DKestroControl_DIR=${SCRATCH}/prefix/${LIBRARY_FOLDER}/cmake/KestroControl ${target_options}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND ${CMAKE_COMMAND} --build ${SCRATCH}/build --target plix
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

if(EXISTS ${SCRATCH}/build/kestro_control)
    message(FATAL_ERROR "our own KestroControl was built all the same")
endif()
set(expected "${SCRATCH}/prefix/[^;]*KestroControl")
if(WINDOWS)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_PLATFORM windows+pe)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_TOOL objdump)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_COMMAND ${OBJDUMP})
    # A DLL names others without their folders, and CMake in small letters.
    set(expected "kestrocontrol.dll")
endif()
file(GET_RUNTIME_DEPENDENCIES
    LIBRARIES ${SCRATCH}/build/${LIBRARY}
    RESOLVED_DEPENDENCIES_VAR dependencies
    UNRESOLVED_DEPENDENCIES_VAR unresolved)
if(NOT "${dependencies};${unresolved}" MATCHES "${expected}")
    message(FATAL_ERROR
        "${LIBRARY} does not link the installed KestroControl: ${dependencies};${unresolved}")
endif()
