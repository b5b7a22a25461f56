# SPDX-License-Identifier: MIT
guibase_room(docks/areas
    PUBLIC
        tabifysupport.cpp tabifysupport.h
        tilesupport.cpp tilesupport.h
    INTERNAL
        dockareasupport.cpp dockareasupport_p.h
        gridplacement.cpp gridplacement_p.h
        tilegrid.cpp tilegrid_p.h)
