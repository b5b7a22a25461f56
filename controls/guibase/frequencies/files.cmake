# SPDX-License-Identifier: MIT
guibase_room(frequencies
    PUBLIC
        frequencytoaxisstring.cpp frequencytoaxisstring.h
        stringformatter.cpp stringformatter.h
        suffixeddouble.cpp suffixeddouble.h suffixeddoubledigits.cpp
        unitprefix.h
    INTERNAL
        letterset_p.h)
