# SPDX-License-Identifier: MIT
guibase_room(splitters
    PUBLIC
        splitter.cpp splitter.h
        splitterhandle.cpp splitterhandle.h
    INTERNAL
        guibasesplitters.cpp
        splittertable.cpp splittertable.h)
