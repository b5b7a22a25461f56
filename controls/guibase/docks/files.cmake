# SPDX-License-Identifier: MIT
guibase_room(docks
    PUBLIC
        dockwidgetconfigurator.cpp dockwidgetconfigurator.h
        dockwidgethelpers.cpp dockwidgethelpers.h
        dockwindowstate.cpp
        enhanceddockwidget.cpp enhanceddockwidget.h
        enhanceddockwidgettitlebar.cpp enhanceddockwidgettitlebar.h
        mainwindowconfigurator.cpp mainwindowconfigurator.h
        mainwindowhelpers.cpp mainwindowhelpers.h
        maximizeminimizestate.cpp
        maximizeminimizesupport.cpp maximizeminimizesupport.h
    INTERNAL
        areaaction.cpp areaaction.h
        attachedhelper.h
        covereddocks.cpp covereddocks.h
        dockarrangement.cpp dockarrangement.h
        dockchildren.cpp dockchildren.h
        dockfocus.cpp dockfocus.h
        dockframe.cpp dockframe_p.h
        dockicons.cpp dockicons.h
        dockpointer.h
        docksizes.cpp docksizes.h
        docktitle.h
        edgehiding.h
        managedwindow.cpp managedwindow_p.h
        survivalcheck.h
        titlebarbutton.cpp titlebarbutton_p.h
        titlebarbuttons.cpp titlebarbuttons_p.h
        titlebardrag.cpp titlebardrag_p.h
        updatesblocker.h
        windowidentity_p.h)
