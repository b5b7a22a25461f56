# SPDX-License-Identifier: MIT
guibase_room(lists/columns
    PUBLIC
        qheaderviewcolumnhandler.cpp qheaderviewcolumnhandler.h
    INTERNAL
        guibasecolumns.cpp
        columnmenu.cpp columnmenu.h
        columntable.cpp columntable.h
        headerarrangement.cpp headerarrangement.h
        listcolumnkeys.cpp listcolumnkeys.h)
