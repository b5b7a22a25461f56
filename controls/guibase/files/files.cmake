# SPDX-License-Identifier: MIT
guibase_room(files
    PUBLIC
        fileopenmanager.cpp fileopenmanager.h
        ifileopener.cpp ifileopener.h
        ilrustringlistdisplayer.cpp ilrustringlistdisplayer.h
        lrustringlistcontroller.cpp lrustringlistcontroller.h
    INTERNAL
        lrustringliststore.cpp lrustringliststore_p.h
        recentfilesmenu.cpp recentfilesmenu_p.h)
