# SPDX-License-Identifier: MIT
guibase_room(layouts
    INTERNAL
        guibaselayouts.cpp
        dockrestore.cpp dockrestore_p.h
        floatingdockkeeper.cpp floatingdockkeeper.h
        modetable.cpp modetable_p.h
        normalsize.cpp normalsize.h
        persistentwidget.cpp persistentwidget_p.h
        persistentwidgetregistry.cpp persistentwidgetregistry.h
        screenwatch.cpp screenwatch_p.h
        sizewait.cpp sizewait_p.h
        widgetplacement.cpp widgetplacement.h
        windowplaces.cpp windowplaces_p.h
        windowrecord.cpp windowrecord_p.h)
