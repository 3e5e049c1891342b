# Makes the Debian packages of the build and checks what they contain and need.
file(REMOVE_RECURSE ${SCRATCH})
execute_process(
    COMMAND ${CPACK} --config ${BUILD}/CPackConfig.cmake -B ${SCRATCH}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

# expect_package(NAME CONTENTS... DEPENDS...): regular expressions.
function(expect_package name)
    cmake_parse_arguments(arg "" "" "CONTENTS;DEPENDS" ${ARGN})
    file(GLOB package ${SCRATCH}/${name}_${VERSION}_*.deb)
    execute_process(COMMAND dpkg-deb --contents ${package}
        OUTPUT_VARIABLE contents COMMAND_ERROR_IS_FATAL ANY)
    foreach(file IN LISTS arg_CONTENTS ITEMS "/share/doc/${name}/copyright")
        if(NOT contents MATCHES " \\./usr${file}( -> [^\n]*)?\n")
            message(SEND_ERROR "${package} does not contain ${file}:\n${contents}")
        endif()
    endforeach()
    execute_process(COMMAND dpkg-deb --field ${package} Depends
        OUTPUT_VARIABLE depends COMMAND_ERROR_IS_FATAL ANY)
    foreach(dependency IN LISTS arg_DEPENDS)
        if(NOT ", ${depends}" MATCHES ", ${dependency}[, \n]")
            message(SEND_ERROR "${package} does not depend on ${dependency}, only on ${depends}")
        endif()
    endforeach()
endfunction()

expect_package(${RUNTIME_PACKAGE}
    CONTENTS /lib[^\n]*/libplix\\.so\\.0 /lib[^\n]*/libKestroControl\\.so\\.1
    DEPENDS libqt5widgets5 libjsoncpp[0-9]+ libstdc\\+\\+6)
set(same_version "${RUNTIME_PACKAGE} \\(= ${VERSION}\\)")
expect_package(libplix-dev
    CONTENTS /lib[^\n]*/libplix\\.so /lib[^\n]*/libKestroControl\\.so /include/plix/Plix\\.h
             /include/kestro_control/TextItem\\.h /lib[^\n]*/cmake/Plix/PlixConfig\\.cmake
             /lib[^\n]*/pkgconfig/plix\\.pc
    DEPENDS "${same_version}" qtbase5-dev)
expect_package(plix
    CONTENTS /bin/plix /share/man/man1/plix\\.1
    DEPENDS "${same_version}" libqt5widgets5)
