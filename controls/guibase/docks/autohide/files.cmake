# SPDX-License-Identifier: MIT
guibase_room(docks/autohide
    PUBLIC
        autohidesupport.cpp autohidesupport.h autohidesupport_p.h
    INTERNAL
        autohidebars.cpp autohidebars_p.h
        autohidebutton.cpp autohidebutton_p.h
        autohidemode.cpp
        autohiderecord.cpp autohiderecord_p.h
        autohidetimer.cpp autohidetimer_p.h)
