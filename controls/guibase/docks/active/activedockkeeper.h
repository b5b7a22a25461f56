// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/docks/dockpointer.h>

#include <QPointer>

class QMainWindow;

namespace QMainWindowHelpers {

class ActiveDockWidgetSupport;

/// Keeps the active dock of a main window through a rearrangement of its docks, and the window's
/// ActiveDockWidgetSupport, if it has one, silent meanwhile.
class ActiveDockKeeper
{
public:
    explicit ActiveDockKeeper(const QMainWindow& mainWindow);
    /// Lets the support speak again. If the active dock could not be kept, it says so.
    ~ActiveDockKeeper();
    ActiveDockKeeper(const ActiveDockKeeper&) = delete;
    ActiveDockKeeper& operator=(const ActiveDockKeeper&) = delete;

    /// Asks for the dock that was active to be brought to the front at the end.
    void bringToFront() { m_bringToFront = true; }

private:
    QPointer<ActiveDockWidgetSupport> m_support;
    DockPointer m_dock;
    bool m_hadDock = false;
    bool m_wasBlocked = false;
    bool m_bringToFront = false;
};

} // namespace QMainWindowHelpers
