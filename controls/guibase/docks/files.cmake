# SPDX-License-Identifier: MIT
set(docks_headers
    mainwindowhelpers.h)
set(docks_sources
    attachedhelper_p.h
    mainwindowhelpers.cpp
    updatesblocker_p.h)
