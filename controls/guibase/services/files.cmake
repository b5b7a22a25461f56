# SPDX-License-Identifier: MIT
set(services_headers
    guibase.h
    unitprefix.h)
set(services_sources
    guibase.cpp)
