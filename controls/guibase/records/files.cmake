# SPDX-License-Identifier: MIT
guibase_room(records OBJECT
    INTERNAL
        autohidestate.cpp autohidestate.h
        columntext.cpp columntext.h
        docklayout.h
        dockstatecheck.cpp dockstatecheck.h
        geometryrecord.cpp geometryrecord.h
        headerstate.cpp headerstate.h
        hexadecimal.cpp hexadecimal.h
        maximizeddocks.cpp maximizeddocks.h
        recordstore.cpp recordstore.h
        screenplacement.cpp screenplacement.h
        splitterstatecheck.cpp splitterstatecheck.h
        staterecord.cpp staterecord.h
        statewalk.cpp statewalk.h)
