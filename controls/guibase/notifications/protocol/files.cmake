# SPDX-License-Identifier: MIT
guibase_room(notifications/protocol OBJECT
    INTERNAL
        notificationmessage.cpp notificationmessage.h
        notificationstack.cpp notificationstack.h)
