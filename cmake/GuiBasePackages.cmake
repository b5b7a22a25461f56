# SPDX-License-Identifier: MIT
# Debian packages, one for each component of the installation: `cpack -G DEB` in the build folder.

set(CPACK_PACKAGE_VENDOR "The GuiBase developers")
set(CPACK_PACKAGE_CONTACT "The GuiBase developers" CACHE STRING
    "Who maintains the packages: name and address")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL runtime development)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
# Programs and libraries name what they need of the system; what they need of each other lies here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
foreach(library IN ITEMS JTBase TrovAppStartUp ValueFramework XMsgDlg GuiBase RadioPanes)
    get_target_property(folder ${library} BINARY_DIR)
    list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${folder}")
endforeach()

# guibase_package(<component> <package> <section> <depends> <description>)
#
# The first line of every description is that of the project.
function(guibase_package component package section depends description)
    string(TOUPPER "${component}" key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME "${package}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION "${section}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_DESCRIPTION "${description}" PARENT_SCOPE)
    install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" RENAME copyright
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}" COMPONENT ${component})
endfunction()

set(guibase_runtime "libguibase${PROJECT_VERSION_MAJOR}")
guibase_package(runtime ${guibase_runtime} libs "qt6-qpa-plugins"
    "The libraries: typed inputs, lists, docks that hide and tile, shared colours,
hot keys, layouts that come back, spectrum and waterfall panes.")
guibase_package(development libguibase-dev libdevel
    "${guibase_runtime} (= ${PROJECT_VERSION}), qt6-base-dev (>= 6.4)"
    "For development: headers, the CMake package and the pkg-config files.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "cmake, g++, make, pkg-config")
# The pages with the examples they lead to: who takes the package needs no source to begin.
set(guibase_pages "${CMAKE_INSTALL_DATADIR}/doc/libguibase-dev")
install(FILES README.md CHANGELOG.md CONTRIBUTING.md LICENSE DESTINATION "${guibase_pages}" COMPONENT development)
install(DIRECTORY docs/ DESTINATION "${guibase_pages}/docs" COMPONENT development
    PATTERN api EXCLUDE)
install(DIRECTORY examples/quickstart examples/designer DESTINATION "${guibase_pages}/examples"
    COMPONENT development)
if(GUIBASE_BUILD_EXAMPLES)
    list(APPEND CPACK_COMPONENTS_ALL example)
    guibase_package(example bandmonitor hamradio
        "${guibase_runtime} (= ${PROJECT_VERSION})"
        "The example application: spectrum, waterfall and replay of band scans.
Opens recordings of common receiver tools, detects signals in them and
keeps jobs, bearings and an event log. Shows a sample without a file.")
endif()
if(GUIBASE_BUILD_DESIGNER)
    list(APPEND CPACK_COMPONENTS_ALL designer)
    guibase_package(designer libguibase-designer libdevel
        "${guibase_runtime} (= ${PROJECT_VERSION})"
        "For Qt Designer, and programs that load forms at run time: the inputs,
lists, docks and panes of the libraries with their properties.")
endif()
include(CPack)
