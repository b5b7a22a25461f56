# SPDX-License-Identifier: MIT
guibase_room(panes
    PUBLIC
        axes.cpp axes.h
        bandpane.cpp bandpane.h
        bandpanes.cpp bandpanes.h
        frequencytext.cpp frequencytext.h
        heldtraces.cpp heldtraces.h
        levelpanes.cpp levelpanes.h
        spectrumpane.cpp spectrumpane.h
        visibleband.cpp visibleband.h
        waterfallpane.cpp waterfallpane.h
    INTERNAL
        spectrumoverlay.cpp spectrumpane_p.h spectrumpicture.cpp
        spectrumraster.cpp spectrumraster_p.h
        wheelnotches_p.h)
