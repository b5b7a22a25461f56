# SPDX-License-Identifier: MIT
guibase_room(panes
    PUBLIC
        axes.cpp axes.h
        bandpane.cpp bandpane.h
        bandplanrow.cpp bandplanrow.h
        bandpanes.cpp bandpanes.h
        frequencytext.cpp frequencytext.h
        heldtraces.cpp heldtraces.h
        historyplace.h
        levelpanes.cpp levelpanes.h
        overviewpane.cpp overviewpane.h
        spectrumpane.cpp spectrumpane.h
        visibleband.cpp visibleband.h
        waterfallpane.cpp waterfallpane.h
    INTERNAL
        mixedcolor_p.h
        namefield.cpp namefield_p.h
        panepainter_p.h
        placebox.cpp placebox_p.h
        repeatedrows.cpp repeatedrows_p.h
        spectrumoverlay.cpp spectrumpane_p.h spectrumpicture.cpp
        spectrumraster.cpp spectrumraster_p.h
        waterfalllines.cpp waterfalllines_p.h)
