# SPDX-License-Identifier: MIT
guibase_room(dialogs
    INTERNAL
        modaldialogs.cpp modaldialogs.h)
