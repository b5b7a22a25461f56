# SPDX-License-Identifier: MIT
guibase_room(docks/autohide
    PUBLIC
        autohidesupport.cpp autohidesupport.h autohidesupport_p.h
    INTERNAL
        autohidebutton.cpp autohidebutton_p.h
        autohidesupportevents.cpp)
