// SPDX-License-Identifier: MIT
#pragma once

#include "autohidesupport.h"

#include <guibase/docks/attachedhelper.h>
#include <guibase/docks/dockchildren.h>
#include <guibase/docks/dockpointer.h>
#include <guibase/records/autohidestate.h>

#include <QBasicTimer>
#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <QToolBar>

#include <map>

namespace QMainWindowHelpers {

struct AutoHideSupportPrivate
{
    /// A dock of the main window, kept under its address, which is good for comparing only.
    struct Entry
    {
        DockPointer dock;
        QMap<Qt::ToolBarArea, QAction*> proxies;
        QPointer<QAction> autoHideAction; ///< The one that is connected.
        QString name;                     ///< The object name, known when the dock dies too.
        bool hiddenByMode = false;
        bool isClosed = false; ///< By the user or the application, not by the mode.
        bool willHide = false; ///< Once what it has open is closed.
        bool hadArea = false;  ///< When it entered the mode.
    };

    AutoHideSupportPrivate(AutoHideSupport& support, QMainWindow& served,
                           QFlags<Qt::ToolBarArea> givenAreas);

    Entry* entryOf(const QObject* dock);
    bool isOn(const QDockWidget& dock) const { return autoHideDocks.contains(&dock); }

    /// Makes buttons for the dock and watches it; does nothing for a dock that is registered.
    void registerDock(QDockWidget& dock);
    /// `dock` is null when the dock is being destroyed.
    void unregisterDock(const QObject* key, QDockWidget* dock);
    void addButtons(QDockWidget& dock, Entry& entry);
    void connectAutoHideAction(QDockWidget& dock);
    /// Texts and icons of the buttons.
    void followDock(const QDockWidget& dock);

    /// The area itself, or the other side when only that has a tool bar; else NoToolBarArea.
    Qt::ToolBarArea usableArea(Qt::ToolBarArea wanted) const;
    Qt::ToolBarArea shownArea(const QDockWidget& dock) const;
    void enable(QDockWidget& dock, Qt::ToolBarArea area);
    /// Also moves the button of a dock that is in the mode already.
    void restore(QDockWidget& dock, Qt::ToolBarArea area);
    void setActionChecked(const QDockWidget& dock, bool checked);

    /// Hides the dock, or does so later if something of its own is open.
    void hideDock(QDockWidget& dock);
    void hideLater(QDockWidget& dock);
    /// Ends the mode of a dock that was closed, docked while hidden, or taken out of the window.
    void leaveWhenGone(QDockWidget& dock);
    void hideOther(QDockWidget* pending, const QDockWidget& dock);
    void dockShown(QDockWidget& dock);
    /// Keeps the shown docks against their tool bars.
    void followMainWindow();
    void showByKey(QDockWidget& dock);
    void dismissByKey(QDockWidget& dock);
    void dismissAll();

    AutoHideState state() const;
    void apply(const AutoHideState& state);
    /// Applies what is remembered of a dock that has come.
    void applyRemembered(QDockWidget& dock);
    void store() const;

    AutoHideSupport& q;
    QMainWindow& mainWindow;
    const QFlags<Qt::ToolBarArea> areas;
    AutoHideSupport::SelectToolBarAreaFn selectArea;
    QAction* popupOnHover = nullptr;
    QMap<Qt::ToolBarArea, QPointer<QToolBar>> toolBars;
    QList<const QDockWidget*> autoHideDocks;
    bool syncWithFloating = true;
    bool allowNonFloating = false;
    int delay = 500;
    QBasicTimer hideTimer;
    DockPointer pending;
    bool waitsForOpenWindow = false; ///< The hiding was put off for something that was open.

    std::map<const QObject*, Entry> entries;
    /// The saved sides of docks that are not there.
    QMap<QString, Qt::ToolBarArea> remembered;
    QString storageName;
    bool isFollowing = false;
    bool isApplying = false; ///< Nothing is stored meanwhile.
    DockChildren children;
    AttachedHelpers::Attachment attachment;
};

} // namespace QMainWindowHelpers
