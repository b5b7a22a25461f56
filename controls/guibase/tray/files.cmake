# SPDX-License-Identifier: MIT
guibase_room(tray
    PUBLIC
        trayicon.cpp trayicon.h
        traystate.h
    INTERNAL
        traypicture.cpp traypicture_p.h)
