# SPDX-License-Identifier: MIT
guibase_room(panes
    PUBLIC
        axes.cpp axes.h
        bandpane.cpp bandpane.h
        frequencytext.cpp frequencytext.h
        spectrumpane.cpp spectrumpane.h
        visibleband.cpp visibleband.h
        waterfallpane.cpp waterfallpane.h)
