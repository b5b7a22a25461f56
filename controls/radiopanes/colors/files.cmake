# SPDX-License-Identifier: MIT
guibase_room(colors
    PUBLIC
        contrast.cpp contrast.h
        panecolors.cpp panecolors.h)
