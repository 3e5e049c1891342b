# `cpack` makes Debian packages of the installed components. The preset "deb" has the
# folders of Debian.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME plix)
set(CPACK_PACKAGE_CONTACT "Plix maintainers <maintainers@plix.example>" CACHE STRING
    "The maintainer of the Debian packages")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "structured card messages in a chat client")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL Runtime Development)
if(PLIX_BUILD_TOOL)
    list(APPEND CPACK_COMPONENTS_ALL Tools)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Where the tool's package finds the libraries of the other one.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(same_version "${PLIX_RUNTIME_PACKAGE} (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${PLIX_RUNTIME_PACKAGE})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "The libraries libplix and libKestroControl.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${PLIX_DEVELOPMENT_PACKAGE})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${same_version}, qtbase5-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "The headers of libplix and libKestroControl, with files for CMake and pkg-config.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME ${PLIX_TOOLS_PACKAGE})
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${same_version}")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "The command plix, which draws card messages.")

include(CPack)
