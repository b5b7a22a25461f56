# SPDX-License-Identifier: MIT
guibase_room(undo
    PUBLIC
        guiundorecordinghelper.cpp guiundorecordinghelper.h
        undoactions.cpp undoactions.h
        undorecordingcontrols.cpp undorecordingcontrols.h)
