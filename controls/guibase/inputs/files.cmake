# SPDX-License-Identifier: MIT
set(inputs_headers
    suffixeddouble.h)
set(inputs_sources
    suffixeddouble.cpp)
