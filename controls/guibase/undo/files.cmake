# SPDX-License-Identifier: MIT
guibase_room(undo
    PUBLIC
        guiundorecordinghelper.cpp guiundorecordinghelper.h
        undorecordingcontrols.cpp undorecordingcontrols.h)
