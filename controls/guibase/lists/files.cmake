# SPDX-License-Identifier: MIT
guibase_room(lists
    PUBLIC
        checksortlistviewitem.cpp checksortlistviewitem.h
        isortcallback.h
        iupdatemenu.h
        resortpopupmenu.cpp resortpopupmenu.h
        sortlistview.cpp sortlistview.h
        sortlistviewitem.cpp sortlistviewitem.h
        sortlistviewitemiterator.h
        sortrowtable.cpp sortrowtable.h
    INTERNAL
        itemwalk_p.h
        listcolumns.cpp listcolumns_p.h
        listheader.cpp listheader_p.h
        listsorter.cpp listsorter_p.h
        sortkeys.cpp sortkeys_p.h)
