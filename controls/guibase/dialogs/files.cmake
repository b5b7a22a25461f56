# SPDX-License-Identifier: MIT
guibase_room(dialogs
    PUBLIC
        modaldialogs.cpp modaldialogs.h)
