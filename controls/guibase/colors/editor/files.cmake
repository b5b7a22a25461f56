# SPDX-License-Identifier: MIT
guibase_room(colors/editor
    INTERNAL
        colorseteditor.cpp colorseteditor.h)
