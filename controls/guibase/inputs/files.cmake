# SPDX-License-Identifier: MIT
guibase_room(inputs
    PUBLIC
        refusalmark.cpp refusalmark.h
        typedinput.cpp typedinput.h
        typedinputmacros.h
    INTERNAL
        accessibleinput.cpp accessibleinput.h
        displayformatswitch.h
        lineedittext.cpp lineedittext.h
        steparithmetic.h
        typedinputbody.h
        typedinputvalue.h
        typedinputvariant.h)
# The typed classes take Q_OBJECT from macros.
list(APPEND CMAKE_AUTOMOC_MACRO_NAMES GUIBASE_NUMBER_COMBO_BOX GUIBASE_NUMBER_SPIN_BOX
    GUIBASE_TYPED_INPUT_MEMBERS)
set_source_files_properties("${CMAKE_CURRENT_LIST_DIR}/typedinputmacros.h" PROPERTIES SKIP_AUTOMOC ON)
