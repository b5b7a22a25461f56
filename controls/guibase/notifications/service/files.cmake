# SPDX-License-Identifier: MIT
guibase_room(notifications/service OBJECT
    INTERNAL
        notificationconnection.cpp notificationconnection.h
        notificationserver.cpp notificationserver.h
        notificationservice.cpp notificationservice.h
        notificationsettings.h
        retrypause_p.h)
