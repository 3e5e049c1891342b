# The installed package: headers, library, CMake package, pkg-config file.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/KestroControl)
configure_package_config_file(KestroControlConfig.cmake.in KestroControlConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(KestroControlConfigVersion.cmake
    VERSION ${KESTRO_CONTROL_VERSION}
    COMPATIBILITY SameMajorVersion)

install(TARGETS KestroControl EXPORT KestroControlTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)
install(DIRECTORY include/kestro_control DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    COMPONENT Development)
install(EXPORT KestroControlTargets NAMESPACE KestroControl:: DESTINATION ${package_dir}
    COMPONENT Development)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/KestroControlConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/KestroControlConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT Development)

if(WIN32)
    return()
endif()

# Found from the place of the file itself, so that the package can be moved.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pkgconfig_to_prefix /${pkgconfig_dir} /)
configure_file(kestro-control.pc.in kestro-control.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kestro-control.pc DESTINATION ${pkgconfig_dir}
    COMPONENT Development)
