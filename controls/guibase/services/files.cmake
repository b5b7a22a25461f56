# SPDX-License-Identifier: MIT
guibase_room(services
    PUBLIC
        guibase.cpp guibase.h guibase_p.h
    INTERNAL
        guibasesettings.cpp
        applicationcolors.cpp applicationcolors_p.h
        applicationsetup.cpp applicationsetup_p.h
        desktopmotion.cpp desktopmotion.h
        displaysettings.cpp displaysettings_p.h
        helpmenu.cpp helpmenu_p.h
        settingsrecord.cpp settingsrecord_p.h
        splashforwarder.cpp splashforwarder_p.h
        styleloader.cpp styleloader_p.h
        tracing.h
        windowhelpers.cpp windowhelpers_p.h)
