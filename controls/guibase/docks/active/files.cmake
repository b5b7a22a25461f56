# SPDX-License-Identifier: MIT
guibase_room(docks/active
    PUBLIC
        activedockwidgetsupport.cpp activedockwidgetsupport.h
    INTERNAL
        activedockkeeper.h
        applicationdockevents.cpp applicationdockevents_p.h)
