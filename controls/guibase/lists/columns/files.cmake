# SPDX-License-Identifier: MIT
guibase_room(lists/columns
    PUBLIC
        qheaderviewcolumnhandler.cpp qheaderviewcolumnhandler.h
    INTERNAL
        guibasecolumns.cpp
        columntable.cpp columntable.h
        headerstate.cpp headerstate_p.h
        listcolumnkeys.cpp listcolumnkeys.h)
