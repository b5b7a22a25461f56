# SPDX-License-Identifier: MIT
guibase_room(binding
    PUBLIC
        actionbinding.cpp actionbinding.h
        create.cpp create.h
        formbinding.cpp formbinding.h
        valuewidgetbinding.cpp valuewidgetbinding.h
    INTERNAL
        bindingmacros_p.h
        bindingrows_p.h
        conversion_p.h
        createbyclass_p.h
        inputbinding_p.h
        inputmark.cpp inputmark_p.h
        namedbindings_p.h
        selectionbindings.cpp selectionbindings_p.h
        widgetaccess_p.h)
# The named bindings take Q_OBJECT from macros.
list(APPEND CMAKE_AUTOMOC_MACRO_NAMES GUIBASE_INPUT_BINDING GUIBASE_DISPLAY_BINDING)
set_source_files_properties("${CMAKE_CURRENT_LIST_DIR}/bindingmacros_p.h" PROPERTIES SKIP_AUTOMOC ON)
