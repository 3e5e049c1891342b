# The shared library: the exports of api/exports.txt and nothing else.
file(STRINGS ${PROJECT_SOURCE_DIR}/api/exports.txt plix_exports)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/api/exports.txt)
list(JOIN plix_exports ";\n        " plix_export_lines)
set(version_script ${PROJECT_BINARY_DIR}/plix.map)
file(CONFIGURE OUTPUT ${version_script} CONTENT
"{
    global:
        @plix_export_lines@;
    local:
        *;
};
" @ONLY)

add_library(plix SHARED $<TARGET_OBJECTS:plix_objects>)
add_library(Plix::plix ALIAS plix)
target_include_directories(plix INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                                          $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_link_libraries(plix PRIVATE KestroControl::KestroControl Qt5::Widgets plix_yoga
                                   JsonCpp::JsonCpp)
set_target_properties(plix PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} LINK_DEPENDS ${version_script}
    INSTALL_RPATH "$ORIGIN")
if(UNIX)
    target_link_options(plix PRIVATE LINKER:--version-script=${version_script}
                                     $<$<NOT:$<BOOL:${PLIX_SANITIZE}>>:LINKER:--no-undefined>)
endif()

install(TARGETS plix
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES include/plix/Plix.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/plix)
