# SPDX-License-Identifier: MIT
set(inputs_headers
    frequencytoaxisstring.h
    stringformatter.h
    suffixeddouble.h)
set(inputs_sources
    frequencytoaxisstring.cpp
    stringformatter.cpp
    suffixeddouble.cpp)
