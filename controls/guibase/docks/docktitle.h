// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QString>
#include <QStringList>

/// The window title with its "[*]" replaced as on window frames: it marks unsaved changes, and
/// doubled it stands for itself.
inline QString shownDockTitle(const QDockWidget& dockWidget)
{
    const QString mark = QStringLiteral("[*]");
    QStringList parts = dockWidget.windowTitle().split(mark + mark);
    parts.replaceInStrings(mark, dockWidget.isWindowModified() ? QStringLiteral("*") : QString());
    return parts.join(mark);
}
