# SPDX-License-Identifier: MIT
guibase_room(inputs/coordinates
    PUBLIC
        coordinateedit.cpp coordinateedit.h
        maskedlineedit.cpp maskedlineedit.h
    INTERNAL
        inputmask.cpp inputmask_p.h
        positionfields.cpp positionfields_p.h)
