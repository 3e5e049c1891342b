# The shared library. It exports the functions of api/exports.txt and nothing else.
file(STRINGS ${PROJECT_SOURCE_DIR}/api/exports.txt plix_exports)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/api/exports.txt)

# For Windows: a module definition file. The ordinal of each function is its place in the
# list.
function(plix_write_definition_file path)
    set(lines "LIBRARY plix\nEXPORTS\n")
    set(ordinal 0)
    foreach(name IN LISTS plix_exports)
        math(EXPR ordinal "${ordinal} + 1")
        string(APPEND lines "    ${name} @${ordinal}\n")
    endforeach()
    file(CONFIGURE OUTPUT ${path} CONTENT "${lines}" @ONLY)
endfunction()

function(plix_write_version_script path)
    list(JOIN plix_exports ";\n        " lines)
    file(CONFIGURE OUTPUT ${path} CONTENT
"{
    global:
        @lines@;
    local:
        *;
};
" @ONLY)
endfunction()

add_library(plix SHARED $<TARGET_OBJECTS:plix_objects>)
add_library(Plix::plix ALIAS plix)
target_include_directories(plix INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                                          $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
# Plix.h includes no header of these two, but a host shows its cards with Qt, and sets its
# font family with KestroControl.
target_link_libraries(plix PUBLIC KestroControl::KestroControl Qt5::Widgets
                           PRIVATE plix_yoga JsonCpp::JsonCpp)
target_compile_features(plix INTERFACE cxx_std_17)
set_target_properties(plix PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH "$ORIGIN")
if(WIN32)
    set(definition_file ${PROJECT_BINARY_DIR}/plix.def)
    plix_write_definition_file(${definition_file})
    target_sources(plix PRIVATE ${definition_file})
    # The file is called plix.dll with every compiler.
    set_target_properties(plix PROPERTIES PREFIX "")
else()
    set(version_script ${PROJECT_BINARY_DIR}/plix.map)
    plix_write_version_script(${version_script})
    set_target_properties(plix PROPERTIES LINK_DEPENDS ${version_script})
    target_link_options(plix PRIVATE LINKER:--version-script=${version_script}
                                     $<$<NOT:$<BOOL:${PLIX_SANITIZE}>>:LINKER:--no-undefined>)
endif()
