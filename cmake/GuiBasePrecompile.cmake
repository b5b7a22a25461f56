# SPDX-License-Identifier: MIT
# Reading the toolkit's headers is most of the work of compiling a file. guibase_precompile() lets all
# targets of the project share them, read once; a build from nothing then takes less than half the
# time. Builds for release go without, so that a file that leans on them is found there.

option(GUIBASE_PRECOMPILE "Read the toolkit's headers once for all files" OFF)

set(guibase_toolkit_headers
    <QAbstractItemView> <QAction> <QApplication> <QDateTime> <QHash> <QLabel> <QLayout> <QLineEdit>
    <QList> <QMap> <QMenu> <QPainter> <QPointer> <QString> <QStringList> <QTimer> <QVariant> <QWidget>
    <algorithm> <array> <cmath> <functional> <memory> <optional> <vector>)

# Every folder of tests defines them in another way. Only QFINDTESTDATA reads them, which is not used.
set(guibase_no_test_folders -UQT_TESTCASE_BUILDDIR -UQT_TESTCASE_SOURCEDIR)

# Makes one set of precompiled headers, for guibase_precompile().
function(guibase_add_precompiled name headers)
    add_library(${name} OBJECT "${PROJECT_SOURCE_DIR}/cmake/precompiled.cpp")
    target_link_libraries(${name} PRIVATE guibase_build_settings ${ARGN})
    target_precompile_headers(${name} PRIVATE ${headers})
    target_compile_options(${name} PRIVATE ${guibase_no_test_folders})
    set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON AUTOMOC OFF)
endfunction()

# Whether one of these targets is the wanted one, or brings it to those that link it.
function(guibase_brings targets wanted result)
    set(${result} OFF PARENT_SCOPE)
    foreach(target IN LISTS targets)
        set(brings OFF)
        if(target STREQUAL wanted)
            set(brings ON)
        elseif(TARGET "${target}" AND NOT target MATCHES "^Qt6::")
            get_target_property(links ${target} INTERFACE_LINK_LIBRARIES)
            guibase_brings("${links}" "${wanted}" brings)
        endif()
        if(brings)
            set(${result} ON PARENT_SCOPE)
            return()
        endif()
    endforeach()
endfunction()

# Calls itself for the folders below. Tests share a set of their own; what knows no widgets has none.
function(guibase_precompile folder)
    get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(links ${target} LINK_LIBRARIES)
        get_target_property(type ${target} TYPE)
        guibase_brings("${links}" Qt6::Widgets has_widgets)
        if(target MATCHES "^guibase_precompiled" OR NOT links MATCHES "guibase_build_settings" OR
           NOT type MATCHES "EXECUTABLE|(SHARED|STATIC|OBJECT|MODULE)_LIBRARY" OR
           NOT has_widgets)
            continue()
        endif()
        target_compile_options(${target} PRIVATE ${guibase_no_test_folders})
        # Qt Test's headers read more with this module.
        guibase_brings("${links}" Qt6::Network has_network)
        if(links MATCHES "Qt6::Test" AND NOT has_network)
            target_precompile_headers(${target} REUSE_FROM guibase_precompiled_tests)
        else()
            target_precompile_headers(${target} REUSE_FROM guibase_precompiled)
        endif()
    endforeach()
    get_property(folders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS folders)
        guibase_precompile("${subfolder}")
    endforeach()
endfunction()
