// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QMap>
#include <QObject>

#include <memory>

class QAction;
class QMainWindow;

namespace QMainWindowHelpers {

class DockAreaSupport;

/// Stacks all visible docks of one dock area into one tab group, the first in title order in front
/// of the row of tabs, and offers an action per area for it. Possible with two docks or more.
class GUIBASE_EXPORT TabifySupport : public QObject
{
    Q_OBJECT
public:
    /// The support of this main window; made for `areas` when there is none yet. It belongs to the
    /// main window. An existing support is returned as it is, whatever its areas.
    static TabifySupport* install(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas);
    /// The support of this main window, or null.
    static TabifySupport* get(const QMainWindow& mainWindow);
    ~TabifySupport() override;

    /// The operation on any main window. False, with nothing changed, when it is not possible, and
    /// while the docks of this window are being rearranged already.
    static bool isTabifyDockWidgetsPossible(const QMainWindow& mainWindow, Qt::DockWidgetArea area);
    static bool tabifyDockWidgets(QMainWindow& mainWindow, Qt::DockWidgetArea area);

    /// The same for the window of this support.
    bool isTabifyDockWidgetsPossible(Qt::DockWidgetArea area) const;
    /// The action for one of the supported areas, shown while the operation is possible there. For
    /// any other area it is an action that is never shown and does nothing.
    QAction& tabifyDockWidgetsAction(Qt::DockWidgetArea area) const;
    /// Null while the main window is being destroyed.
    QMainWindow* mainWindow() const;
    /// The supported areas.
    QFlags<Qt::DockWidgetArea> dockWidgetAreas();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The current answer for a supported area; sent whenever the docks may have changed, also with
    /// the same answer. A receiver may be called from within the window's layout: what changes or
    /// deletes the window belongs into a queued connection.
    void isTabifyDockWidgetsPossibleChanged(Qt::DockWidgetArea area, bool possible);
    /// The same for the left area.
    void isTabifyDockWidgetsPossibleInLeftDockWidgetAreaChanged(bool possible);
    /// The same for the right area.
    void isTabifyDockWidgetsPossibleInRightDockWidgetAreaChanged(bool possible);
    /// The same for the top area.
    void isTabifyDockWidgetsPossibleInTopDockWidgetAreaChanged(bool possible);
    /// The same for the bottom area.
    void isTabifyDockWidgetsPossibleInBottomDockWidgetAreaChanged(bool possible);
    /// This support has rearranged the docks of the area.
    void dockWidgetsTabified(Qt::DockWidgetArea area);
    /// The same, for receivers that need no area.
    void dockWidgetsTabified();

public Q_SLOTS:
    /// Rearranges the docks of a supported area; the active dock stays active and in front. False,
    /// with nothing changed, for other areas and when it is not possible.
    bool tabifyDockWidgets(Qt::DockWidgetArea area);
    bool tabifyDockWidgetsInLeftDockWidgetArea();
    bool tabifyDockWidgetsInRightDockWidgetArea();
    bool tabifyDockWidgetsInTopDockWidgetArea();
    bool tabifyDockWidgetsInBottomDockWidgetArea();
    void onMainWindowDestroyed();

protected:
    /// Emits the signals above for those of the areas that are supported.
    void emitIsTabifyDockWidgetsPossibleSignals(QFlags<Qt::DockWidgetArea> areas);

private:
    TabifySupport(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas);
    QMap<Qt::DockWidgetArea, QAction*>
    createDockWidgetAreaActionMap(QFlags<Qt::DockWidgetArea> areas, QObject* parent);

    std::unique_ptr<DockAreaSupport> d;
};

} // namespace QMainWindowHelpers
