# Configures a project that fetches the library with FetchContent. Checks that its build
# makes the libraries and nothing else of this project, that it needs no npm, and that
# nothing is written into the fetched folder. Compiles the project's own source only: the
# library is compiled by the build of this project.
file(REMOVE_RECURSE ${SCRATCH})

# A copy, because the build folder of the checkout changes meanwhile. Without the folders
# of programs and tests, configuring fails if it reads them.
set(fetched ${SCRATCH}/fetched)
foreach(entry IN ITEMS CMakeLists.txt api cmake include kestro_control layout model ui)
    file(COPY ${SOURCE}/${entry} DESTINATION ${fetched})
endforeach()
file(COPY ${SOURCE}/tests/build/fetch_content/CMakeLists.txt
          ${SOURCE}/examples/minimal_host/main.cpp DESTINATION ${SCRATCH}/host)

function(list_fetched result)
    file(GLOB_RECURSE files LIST_DIRECTORIES ON ${fetched}/*)
    set(${result} "${files}" PARENT_SCOPE)
endfunction()

list_fetched(before)
execute_process(
    COMMAND ${CMAKE_COMMAND} -G Ninja -S ${SCRATCH}/host -B ${SCRATCH}/build
        -DFETCHCONTENT_SOURCE_DIR_PLIX=${fetched} -DPLIX_YOGA_DIR=${YOGA} -DNPM=no-npm --no-warn-unused-cli
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND ${CMAKE_COMMAND} --build ${SCRATCH}/build
        --target CMakeFiles/minimal_host.dir/main.cpp.o
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
list_fetched(after)
if(NOT after STREQUAL before)
    list(REMOVE_ITEM after ${before})
    message(SEND_ERROR "the build writes into the fetched folder: ${after}")
endif()

# What the build links, and what it would install.
execute_process(COMMAND ${NINJA} -C ${SCRATCH}/build -t targets all
    OUTPUT_VARIABLE targets COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+: CXX_[A-Z_]+_LINKER_[^\n]+" links "${targets}")
list(TRANSFORM links REPLACE "^([^:]*/)?([^/:]+): .*" "\\2")
list(SORT links)
set(expected libKestroControl.so.1.0.0 libplix.so.${VERSION} libyogacore.a minimal_host)
if(NOT links STREQUAL expected)
    message(SEND_ERROR "the build makes ${links}, not ${expected}")
endif()
execute_process(
    COMMAND ${CMAKE_COMMAND} --install ${SCRATCH}/build --prefix ${SCRATCH}/prefix
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
if(EXISTS ${SCRATCH}/prefix)
    message(SEND_ERROR "the library installs itself with the project")
endif()
