# SPDX-License-Identifier: MIT
guibase_room(hotkeys
    INTERNAL
        guibasehotkeys.cpp
        hotkeyoverview.cpp hotkeyoverview.h
        hotkeyregistry.cpp hotkeyregistry.h)
