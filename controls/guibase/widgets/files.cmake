# SPDX-License-Identifier: MIT
guibase_room(widgets
    PUBLIC
        animationwidget.cpp animationwidget.h
        circlelayout.cpp circlelayout.h
        closabletabwidget.cpp closabletabwidget.h
        contextmenuhandler.cpp contextmenuhandler.h
        toolbarcontainer.cpp toolbarcontainer.h
        widgetflasher.cpp widgetflasher.h
    INTERNAL
        circleplan.cpp circleplan_p.h
        contextmenuplace.cpp contextmenuplace_p.h)
