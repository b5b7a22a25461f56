// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

/// What a pop-up has told the user.
struct NotificationRecord
{
    QDateTime time; ///< When it was raised, in local time.
    QString title;  ///< The window title.
    QString text;   ///< Of another pop-up than StandardNotification, its accessible description.
};
