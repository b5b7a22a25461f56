# SPDX-License-Identifier: MIT
# Every library of the project is made by guibase_add_library(), so that all of them have an alias,
# a generated export header, hidden visibility, a version and an installation rule. Installed ones
# find each other beside themselves: the run path of an application does not count for them.

include(GenerateExportHeader)
include(CMakePackageConfigHelpers)
include(CheckLinkerFlag)

# Some symbols are visible whatever the compiler is told.
set(guibase_hide_symbols
    "LINKER:--version-script=${CMAKE_CURRENT_LIST_DIR}/exports.map")
check_linker_flag(CXX "${guibase_hide_symbols}" GUIBASE_LINKER_HIDES)

# A library finds its own functions when it is linked, not when a program starts. That asks of users
# what the toolkit asks of them already: code that is independent of its place (-fPIC).
set(guibase_bind_own_functions "LINKER:-Bsymbolic-functions")
check_linker_flag(CXX "${guibase_bind_own_functions}" GUIBASE_LINKER_BINDS)

set(GUIBASE_INSTALL_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/GuiBase")
set(GUIBASE_INSTALL_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/GuiBase")

# guibase_add_library(<name>
#     HEADERS <public headers>   relative to the calling folder; installed
#     SOURCES <sources and private headers>
#     LINKS <public dependencies>
#     PRIVATE_LINKS <private dependencies>)
#
# The public include path is the parent of the calling folder: <folder/header.h>. The export header
# is <folder/folder_export.h> with the macro FOLDER_EXPORT.
function(guibase_add_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;SOURCES;LINKS;PRIVATE_LINKS")
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "guibase_add_library(${name}): unknown words ${arg_UNPARSED_ARGUMENTS}")
    endif()
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH base_dir)
    set(generated_dir "${CMAKE_CURRENT_BINARY_DIR}/generated")

    add_library(${name} SHARED ${arg_SOURCES})
    add_library(GuiBase::${name} ALIAS ${name})
    generate_export_header(${name}
        BASE_NAME ${folder}
        EXPORT_FILE_NAME "${generated_dir}/${folder}/${folder}_export.h")
    target_sources(${name}
        PUBLIC FILE_SET HEADERS BASE_DIRS "${base_dir}" FILES ${arg_HEADERS}
        PUBLIC FILE_SET generated_headers TYPE HEADERS BASE_DIRS "${generated_dir}"
               FILES "${generated_dir}/${folder}/${folder}_export.h")
    target_include_directories(${name} INTERFACE
        "$<INSTALL_INTERFACE:${GUIBASE_INSTALL_INCLUDEDIR}>")
    target_link_libraries(${name}
        PUBLIC ${arg_LINKS}
        PRIVATE ${arg_PRIVATE_LINKS} $<BUILD_INTERFACE:guibase_build_settings>)
    target_compile_features(${name} PUBLIC cxx_std_20)
    if(GUIBASE_LINKER_HIDES)
        target_link_options(${name} PRIVATE "${guibase_hide_symbols}")
    endif()
    if(GUIBASE_LINKER_BINDS)
        target_link_options(${name} PRIVATE "${guibase_bind_own_functions}")
    endif()
    set_target_properties(${name} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        INSTALL_RPATH "$<IF:$<PLATFORM_ID:Darwin>,@loader_path,$ORIGIN>"
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    install(TARGETS ${name} EXPORT GuiBaseTargets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
            COMPONENT runtime NAMELINK_COMPONENT development
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime
        FILE_SET HEADERS DESTINATION "${GUIBASE_INSTALL_INCLUDEDIR}" COMPONENT development
        FILE_SET generated_headers DESTINATION "${GUIBASE_INSTALL_INCLUDEDIR}"
            COMPONENT development)
    guibase_install_pkgconfig(${name} ${arg_LINKS})
endfunction()

# Installs <name>.pc, which requires those of the public dependencies. It finds the headers and the
# library from where it lies itself, so that the installation may be moved.
function(guibase_install_pkgconfig name)
    set(requires ${ARGN})
    list(TRANSFORM requires REPLACE "^GuiBase::" "")
    list(TRANSFORM requires REPLACE "^Qt6::" "Qt6")
    list(JOIN requires " " requires)
    file(RELATIVE_PATH up "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
    string(REGEX REPLACE "/$" "" up "${up}")
    file(RELATIVE_PATH libdir "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_LIBDIR}")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/library.pc.in"
        "${CMAKE_CURRENT_BINARY_DIR}/${name}.pc" @ONLY)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${name}.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
endfunction()

# Installs what find_package(GuiBase) reads.
function(guibase_install_package)
    install(EXPORT GuiBaseTargets NAMESPACE GuiBase:: DESTINATION "${GUIBASE_INSTALL_CMAKEDIR}"
        COMPONENT development)
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/GuiBaseConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/GuiBaseConfig.cmake"
        INSTALL_DESTINATION "${GUIBASE_INSTALL_CMAKEDIR}")
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/GuiBaseConfigVersion.cmake"
        COMPATIBILITY SameMinorVersion)
    install(FILES "${PROJECT_BINARY_DIR}/GuiBaseConfig.cmake"
                  "${PROJECT_BINARY_DIR}/GuiBaseConfigVersion.cmake"
        DESTINATION "${GUIBASE_INSTALL_CMAKEDIR}" COMPONENT development)
endfunction()
