# SPDX-License-Identifier: MIT
guibase_room(core
    PUBLIC
        axisticks.cpp axisticks.h
        columnreducer.cpp columnreducer.h
        holdmaximum.cpp holdmaximum.h
        levelline.cpp levelline.h
        levelrange.cpp levelrange.h
        sweep.cpp sweep.h)
