# SPDX-License-Identifier: MIT
guibase_room(colors/editor
    PUBLIC
        colorcircle.cpp colorcircle.h
        colorsctrl.cpp colorsctrl.h
        colorselect.cpp colorselect.h
        colorselectlistviewitem.cpp colorselectlistviewitem.h
    INTERNAL
        colorcirclegeometry.cpp colorcirclegeometry_p.h
        colorpreview.cpp colorpreview_p.h
        colorrows.cpp colorrows_p.h
        colorswatch.cpp colorswatch_p.h
        colortoolbuttons.cpp colortoolbuttons_p.h
        drawnicon.cpp drawnicon_p.h
        usercolorsmenu.cpp usercolorsmenu_p.h)
