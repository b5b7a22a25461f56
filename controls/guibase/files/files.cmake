# SPDX-License-Identifier: MIT
set(files_headers
    fileopenmanager.h
    ifileopener.h
    ilrustringlistdisplayer.h
    lrustringlistcontroller.h)
set(files_sources
    fileopenmanager.cpp
    ifileopener.cpp
    ilrustringlistdisplayer.cpp
    lrustringlistcontroller.cpp
    lrustringliststore.cpp
    lrustringliststore_p.h
    recentfilesmenu.cpp
    recentfilesmenu_p.h)
