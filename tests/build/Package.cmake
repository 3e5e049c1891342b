# Tests of what a host uses: the installed package, the sources in a host's own build, and
# the Debian packages.
set(prefix ${CMAKE_CURRENT_BINARY_DIR}/prefix)
add_test(NAME Build.Installs
    COMMAND ${CMAKE_COMMAND} --install ${PROJECT_BINARY_DIR} --prefix ${prefix})
set_tests_properties(Build.Installs PROPERTIES FIXTURES_SETUP installed)

add_test(NAME Build.UsesAnInstalledKestroControl
    COMMAND ${CMAKE_COMMAND}
        -DSOURCE=${PROJECT_SOURCE_DIR}
        -DBUILD=${PROJECT_BINARY_DIR}
        -DCACHE=${PLIX_CACHE_DIR}
        -DPREFIX=${prefix}
        -DSCRATCH=${CMAKE_CURRENT_BINARY_DIR}/external
        -DLIBRARY=$<PATH:RELATIVE_PATH,$<TARGET_FILE:plix>,${PROJECT_BINARY_DIR}>
        -DLIBRARY_FOLDER=${CMAKE_INSTALL_LIBDIR}
        -DOBJECT_SUFFIX=${CMAKE_CXX_OUTPUT_EXTENSION}
        -DNINJA=${CMAKE_MAKE_PROGRAM}
        -P ${CMAKE_CURRENT_SOURCE_DIR}/ExternalKestroControl.cmake)
set_tests_properties(Build.UsesAnInstalledKestroControl PROPERTIES
    TIMEOUT 1200 FIXTURES_REQUIRED installed)

# Linked into the hosts, here and by windows/package.
add_library(plix_card_probe OBJECT CardProbe.cpp)
# windows/package links the object by its name.
set_target_properties(plix_card_probe PROPERTIES UNITY_BUILD OFF)
target_link_libraries(plix_card_probe PRIVATE Qt5::Widgets plix_options)

# windows/package does the same for Windows.
if(CMAKE_CROSSCOMPILING)
    return()
endif()

set(host_arguments
    -DPREFIX=${prefix}
    -DLIBRARY_FOLDER=${CMAKE_INSTALL_LIBDIR}
    -DEXAMPLES=${PROJECT_SOURCE_DIR}/examples
    -DGOLDEN=${PROJECT_SOURCE_DIR}/tests/golden
    -DPROBE=$<TARGET_OBJECTS:plix_card_probe>
    -DVERSION=${PROJECT_VERSION})
set(host_properties
    FIXTURES_REQUIRED installed
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen\;FONTCONFIG_FILE=${PROJECT_BINARY_DIR}/fonts.conf")

add_test(NAME Build.AHostFindsTheInstalledPackage
    COMMAND ${CMAKE_COMMAND} ${host_arguments}
        -DSCRATCH=${CMAKE_CURRENT_BINARY_DIR}/installed_host
        -P ${CMAKE_CURRENT_SOURCE_DIR}/InstalledHost.cmake)
set_tests_properties(Build.AHostFindsTheInstalledPackage PROPERTIES ${host_properties})

find_program(PKG_CONFIG pkg-config)
if(PKG_CONFIG)
    add_test(NAME Build.AHostFindsThePackageWithPkgConfig
        COMMAND ${CMAKE_COMMAND} ${host_arguments} -DPKG_CONFIG=${PKG_CONFIG}
            -DCOMPILER=${CMAKE_CXX_COMPILER}
            -DSCRATCH=${CMAKE_CURRENT_BINARY_DIR}/pkg_config_host
            -P ${CMAKE_CURRENT_SOURCE_DIR}/PkgConfigHost.cmake)
    set_tests_properties(Build.AHostFindsThePackageWithPkgConfig PROPERTIES ${host_properties})
endif()

if(NOT PLIX_SYSTEM_YOGA)
    add_test(NAME Build.AHostFetchesTheLibrariesOnly
        COMMAND ${CMAKE_COMMAND} -DSOURCE=${PROJECT_SOURCE_DIR} -DYOGA=${PLIX_YOGA_SOURCES}
            -DVERSION=${PROJECT_VERSION} -DNINJA=${CMAKE_MAKE_PROGRAM}
            -DSCRATCH=${CMAKE_CURRENT_BINARY_DIR}/fetch_content
            -P ${CMAKE_CURRENT_SOURCE_DIR}/FetchedLibrary.cmake)
endif()

if(NOT PLIX_BUILD_TOOL)
    return()
endif()

add_test(NAME Docs.TheManPageHasEveryOption
    COMMAND ${CMAKE_COMMAND} -DTOOL=$<TARGET_FILE:plix_tool>
        -DMAN_PAGE=${prefix}/${CMAKE_INSTALL_MANDIR}/man1/plix.1
        -P ${CMAKE_CURRENT_SOURCE_DIR}/ManPage.cmake)
set_tests_properties(Docs.TheManPageHasEveryOption PROPERTIES FIXTURES_REQUIRED installed)

# What cpack needs for it.
find_program(DPKG_SHLIBDEPS dpkg-shlibdeps)
find_program(FILE_COMMAND file)
if(DPKG_SHLIBDEPS AND FILE_COMMAND)
    add_test(NAME Build.MakesDebianPackages
        COMMAND ${CMAKE_COMMAND} -DCPACK=${CMAKE_CPACK_COMMAND} -DBUILD=${PROJECT_BINARY_DIR}
            -DSCRATCH=${CMAKE_CURRENT_BINARY_DIR}/deb -DVERSION=${PROJECT_VERSION}
            -DRUNTIME_PACKAGE=${PLIX_RUNTIME_PACKAGE}
            -P ${CMAKE_CURRENT_SOURCE_DIR}/DebianPackages.cmake)
endif()
