# SPDX-License-Identifier: MIT
guibase_room(notifications/popup
    PUBLIC
        notificationrecord.h
        notifications.cpp notifications.h
        standardnotification.cpp standardnotification.h
    INTERNAL
        accessiblenotification.cpp accessiblenotification_p.h
        desktopnotifier.cpp desktopnotifier_p.h
        historydialog.cpp historydialog_p.h
        morepopup.cpp morepopup_p.h
        notificationoutlet.cpp notificationoutlet.h
        popuparranger.cpp popuparranger_p.h
        popuplayout.cpp popuplayout.h
        popupmotion.cpp popupmotion_p.h
        popupplacer.cpp popupplacer_p.h
        screenplacer.cpp screenplacer_p.h
        windowplacer.cpp windowplacer_p.h)
