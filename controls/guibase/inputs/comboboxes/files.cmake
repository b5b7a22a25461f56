# SPDX-License-Identifier: MIT
guibase_room(inputs/comboboxes
    PUBLIC
        abstractcombobox.cpp abstractcombobox.h
        comboboxdisplayer.cpp comboboxdisplayer.h
        comboboxes.cpp comboboxes.h
        numbercomboboxbase.cpp numbercomboboxbase.h
    INTERNAL
        closestitem_p.h
        itemwatch.cpp itemwatch_p.h)
