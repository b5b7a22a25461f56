# SPDX-License-Identifier: MIT
# Catalogues of texts: translations/<name>_<language>.ts beside the code of a library or a program.
# They are compiled into it, so that it finds them wherever it is installed. Without lrelease
# everything is built, and speaks English.

find_program(GUIBASE_LRELEASE lrelease HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}")
find_program(GUIBASE_LUPDATE lupdate HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}")
if(NOT GUIBASE_LRELEASE)
    message(STATUS "No lrelease (package qt6-l10n-tools): the programs will speak English only")
endif()

# guibase_add_translations(<target>)
#
# Embeds the catalogues of the calling folder under ":/i18n", where TranslationCenter finds them.
function(guibase_add_translations target)
    if(NOT GUIBASE_LRELEASE)
        return()
    endif()
    file(GLOB catalogues CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/translations/*.ts")
    set(compiled "")
    foreach(catalogue IN LISTS catalogues)
        cmake_path(GET catalogue STEM name)
        set(file "${CMAKE_CURRENT_BINARY_DIR}/translations/${name}.qm")
        add_custom_command(OUTPUT "${file}"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${CMAKE_CURRENT_BINARY_DIR}/translations"
            COMMAND "${GUIBASE_LRELEASE}" -silent "${catalogue}" -qm "${file}"
            DEPENDS "${catalogue}"
            VERBATIM)
        list(APPEND compiled "${file}")
    endforeach()
    qt_add_resources(${target} "${target}_translations"
        PREFIX "/i18n" BASE "${CMAKE_CURRENT_BINARY_DIR}/translations" FILES ${compiled})
endfunction()
