# SPDX-License-Identifier: MIT
guibase_room(bearings
    PUBLIC
        bearing.cpp bearing.h
        bearingrose.cpp bearingrose.h
    INTERNAL
        bearingrosepicture.cpp bearingrose_p.h)
