# What `cmake --install` installs, in three components: Runtime, Development and Tools.
# KestroControl has rules of its own (kestro_control/Install.cmake).
include(CMakePackageConfigHelpers)

# The names of the Debian packages of the components.
set(PLIX_RUNTIME_PACKAGE libplix${PROJECT_VERSION_MAJOR})
set(PLIX_DEVELOPMENT_PACKAGE libplix-dev)
set(PLIX_TOOLS_PACKAGE plix)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Plix)
configure_package_config_file(cmake/package/PlixConfig.cmake.in PlixConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(PlixConfigVersion.cmake COMPATIBILITY SameMinorVersion)

install(TARGETS plix EXPORT PlixTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)
install(FILES include/plix/Plix.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/plix
    COMPONENT Development)
install(EXPORT PlixTargets NAMESPACE Plix:: DESTINATION ${package_dir} COMPONENT Development)
install(FILES ${PROJECT_BINARY_DIR}/PlixConfig.cmake ${PROJECT_BINARY_DIR}/PlixConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT Development)

if(PLIX_BUILD_TOOL)
    install(TARGETS plix_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Tools)
endif()

# The rest has no use on Windows.
if(WIN32)
    return()
endif()

# Found from the place of the file itself, so that the package can be moved.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pkgconfig_to_prefix /${pkgconfig_dir} /)
set(pkgconfig_requires "Qt5Widgets >= 5.15")
if(NOT PLIX_EXTERNAL_KESTRO_CONTROL)
    string(PREPEND pkgconfig_requires "kestro-control >= 1, ")
endif()
configure_file(cmake/package/plix.pc.in plix.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/plix.pc DESTINATION ${pkgconfig_dir} COMPONENT Development)

if(PLIX_BUILD_TOOL)
    configure_file(tools/plix.1.in plix.1 @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/plix.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
        COMPONENT Tools)
endif()

# The licences of what the libraries contain: a file for each Debian package.
file(READ cmake/yoga/LICENSE yoga_licence)
configure_file(cmake/package/copyright.in copyright @ONLY)
function(plix_install_copyright component package)
    install(FILES ${PROJECT_BINARY_DIR}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package}
        COMPONENT ${component})
endfunction()
plix_install_copyright(Runtime ${PLIX_RUNTIME_PACKAGE})
plix_install_copyright(Development ${PLIX_DEVELOPMENT_PACKAGE})
if(PLIX_BUILD_TOOL)
    plix_install_copyright(Tools ${PLIX_TOOLS_PACKAGE})
endif()
