# SPDX-License-Identifier: MIT
guibase_room(colors
    PUBLIC
        colormap.cpp colormap.h
        contrast.cpp contrast.h
        levelcolors.cpp levelcolors.h
        panecolors.cpp panecolors.h)
