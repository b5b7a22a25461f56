# SPDX-License-Identifier: MIT
guibase_room(core
    PUBLIC
        axisticks.cpp axisticks.h
        bandplan.cpp bandplan.h
        columnreducer.cpp columnreducer.h
        heldlevels.cpp heldlevels.h
        levelhistory.cpp levelhistory.h
        levelline.cpp levelline.h
        levelrange.cpp levelrange.h
        measurements.cpp measurements.h
        overviewlevels.cpp overviewlevels.h
        sweep.cpp sweep.h)
