# SPDX-License-Identifier: MIT
guibase_room(hotkeys
    PUBLIC
        hotkeyeditor.cpp hotkeyeditor.h
    INTERNAL
        guibasehotkeys.cpp
        hotkey.h
        hotkeyassignments.cpp hotkeyassignments.h
        hotkeylist.cpp hotkeylist_p.h
        hotkeyoverview.cpp hotkeyoverview.h
        hotkeyregistry.cpp hotkeyregistry.h
        keynames.cpp keynames.h)
