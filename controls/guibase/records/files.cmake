# SPDX-License-Identifier: MIT
guibase_room(records OBJECT
    INTERNAL
        autohidestate.cpp autohidestate.h
        damagedrecords.cpp damagedrecords.h
        delayedwrite.cpp delayedwrite.h
        dockstatecheck.cpp dockstatecheck.h
        geometryrecord.cpp geometryrecord.h
        hexadecimal.cpp hexadecimal.h
        screenplacement.cpp screenplacement.h
        splitterstatecheck.cpp splitterstatecheck.h
        staterecord.cpp staterecord.h
        statewalk.cpp statewalk.h)
