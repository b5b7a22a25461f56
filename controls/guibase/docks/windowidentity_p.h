// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>
#include <QWidget>

/// Applies what is not null.
inline void applyWindowIdentity(QWidget& window, const QString& objectName,
                                const QString& windowTitle, const QIcon& windowIcon,
                                const QString& windowIconText)
{
    if (!objectName.isNull())
        window.setObjectName(objectName);
    if (!windowTitle.isNull())
        window.setWindowTitle(windowTitle);
    if (!windowIcon.isNull())
        window.setWindowIcon(windowIcon);
    if (!windowIconText.isNull())
        window.setWindowIconText(windowIconText);
}
