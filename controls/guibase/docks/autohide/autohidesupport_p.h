// SPDX-License-Identifier: MIT
#pragma once

#include "autohidebars_p.h"
#include "autohiderecord_p.h"
#include "autohidesupport.h"
#include "autohidetimer_p.h"

#include <guibase/docks/attachedhelper.h>
#include <guibase/docks/dockchildren.h>
#include <guibase/docks/dockpointer.h>

#include <QPointer>

#include <map>
#include <optional>

namespace QMainWindowHelpers {

/// The mode itself: which docks are in it, and what the events of the window and its docks do to
/// that. Bars, timer and record do their parts.
struct AutoHideSupportPrivate
{
    /// A dock of the main window, kept under its address, which is good for comparing only.
    struct Entry
    {
        DockPointer dock;
        QPointer<QAction> autoHideAction; ///< The one that is connected.
        QString name;                     ///< The object name, known when the dock dies too.
        bool isOn = false;
        bool hiddenByMode = false;
        bool isClosed = false; ///< By the user or the application, not by the mode.
        bool hadArea = false;  ///< When it entered the mode.
    };

    AutoHideSupportPrivate(AutoHideSupport& support, QMainWindow& served,
                           QFlags<Qt::ToolBarArea> areas);

    /// Null once the support has left its window, and while the window is being destroyed.
    QMainWindow* window() const;
    Entry* entryOf(const QObject* dock);
    bool isOn(const QDockWidget& dock);
    /// Whether docks float while they are in the mode. Where programs do not place windows they
    /// show and hide inside the main window instead.
    bool floatsDocks() const;
    static bool isInItsLayer(const QDockWidget& dock);
    QList<DockPointer> docksInMode();
    /// Ends the mode of all docks, and the service.
    void release();

    /// Makes buttons for the dock and watches it; does nothing for a dock that is registered.
    void registerDock(QDockWidget& dock);
    /// `dock` is null when the dock is being destroyed.
    void unregisterDock(const QObject* key, QDockWidget* dock);
    /// For a living dock whose entry ends: it is no longer watched, leaves the mode, and is shown
    /// again if the mode had hidden it.
    void letGo(QDockWidget& dock, const Entry& entry);
    void connectAutoHideAction(QDockWidget& dock);
    void setActionChecked(const QDockWidget& dock, bool checked);

    void enable(QDockWidget& dock, Qt::ToolBarArea area);
    /// Also moves the button of a dock that is in the mode already.
    void restore(QDockWidget& dock, Qt::ToolBarArea area);
    void disable(QDockWidget& dock);
    /// Ends the mode of a dock that was closed, docked while hidden, or taken out of the window.
    void leaveWhenGone(QDockWidget& dock);
    /// Makes the dock float, or puts it into the window, as docks of the mode shall be.
    void moveToItsLayer(QDockWidget& dock);
    /// Ends the mode of a dock that the user has put where docks of the mode are not.
    void followFloating(QDockWidget& dock);
    /// Hides the docks that this one would cover, but not one that the user is working in.
    void hideOthersAt(Qt::ToolBarArea area, const QDockWidget& dock);
    void placeLater(QDockWidget& dock);
    /// Puts a dock of the mode against its bar.
    void place(QDockWidget& dock);

    void dockShown(QDockWidget& dock);
    /// Keeps the shown docks against their tool bars.
    void followMainWindow();
    void showByKey(QDockWidget& dock);
    void dismissByKey(QDockWidget& dock);
    void dismissAll();

    AutoHideState state();
    void apply(const AutoHideState& state);
    /// Applies what is expected of a dock that has come.
    void applyExpected(QDockWidget& dock);
    void store();

    AutoHideSupport& q;
    QPointer<QObject> served;
    AutoHideSupport::SelectToolBarAreaFn selectArea;
    bool syncWithFloating = true;
    bool allowNonFloating = false;
    bool isFollowing = false;
    AutoHideBars bars;
    AutoHideTimer timer;
    AutoHideRecord record;
    std::map<const QObject*, Entry> entries;
    DockChildren children;
    std::optional<AttachedHelpers::Attachment> attachment;
};

} // namespace QMainWindowHelpers
