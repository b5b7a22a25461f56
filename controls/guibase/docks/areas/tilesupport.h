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

/// Lays all visible docks of one dock area out as a grid, in title order row by row, and offers an
/// action per area for it. Possible with two docks or more whose minimum sizes fit the area in a
/// grid of at most 10 rows and 10 columns; the grid with the fewest rows is taken.
class GUIBASE_EXPORT TileSupport : public QObject
{
    Q_OBJECT
public:
    /// The support of this main window; made for `areas` when there is none yet. It belongs to the
    /// main window. An existing support is returned as it is, whatever its areas.
    static TileSupport* install(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas);
    /// The support of this main window, or null.
    static TileSupport* get(const QMainWindow& mainWindow);
    ~TileSupport() override;

    /// The operation on any main window. False, with nothing changed, when it is not possible, and
    /// while the docks of this window are being rearranged already.
    static bool isTileDockWidgetsPossible(const QMainWindow& mainWindow, Qt::DockWidgetArea area);
    static bool tileDockWidgets(QMainWindow& mainWindow, Qt::DockWidgetArea area);

    /// The same for the window of this support.
    bool isTileDockWidgetsPossible(Qt::DockWidgetArea area) const;
    /// The action for one of the supported areas, shown while the operation is possible there. For
    /// any other area it is an action that is never shown and does nothing.
    QAction& tileDockWidgetsAction(Qt::DockWidgetArea area) const;
    /// Null while the main window is being destroyed.
    QMainWindow* mainWindow() const;
    /// The supported areas.
    QFlags<Qt::DockWidgetArea> dockWidgetAreas();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The current answer for a supported area; sent whenever the docks may have changed, also with
    /// the same answer. A receiver may be called from within the window's layout: what changes or
    /// deletes the window belongs into a queued connection.
    void isTileDockWidgetsPossibleChanged(Qt::DockWidgetArea area, bool possible);
    /// The same for the left area.
    void isTileDockWidgetsPossibleInLeftDockWidgetAreaChanged(bool possible);
    /// The same for the right area.
    void isTileDockWidgetsPossibleInRightDockWidgetAreaChanged(bool possible);
    /// The same for the top area.
    void isTileDockWidgetsPossibleInTopDockWidgetAreaChanged(bool possible);
    /// The same for the bottom area.
    void isTileDockWidgetsPossibleInBottomDockWidgetAreaChanged(bool possible);
    /// This support has rearranged the docks of the area.
    void dockWidgetsTiled(Qt::DockWidgetArea area);
    /// The same, for receivers that need no area.
    void dockWidgetsTiled();

public Q_SLOTS:
    /// Rearranges the docks of a supported area; the active dock stays active and in front. False,
    /// with nothing changed, for other areas and when it is not possible.
    bool tileDockWidgets(Qt::DockWidgetArea area);
    bool tileDockWidgetsInLeftDockWidgetArea();
    bool tileDockWidgetsInRightDockWidgetArea();
    bool tileDockWidgetsInTopDockWidgetArea();
    bool tileDockWidgetsInBottomDockWidgetArea();
    void onMainWindowDestroyed();

protected:
    /// Emits the signals above for those of the areas that are supported.
    void emitIsTileDockWidgetsPossibleSignals(QFlags<Qt::DockWidgetArea> areas);

private:
    TileSupport(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas);
    QMap<Qt::DockWidgetArea, QAction*>
    createDockWidgetAreaActionMap(QFlags<Qt::DockWidgetArea> areas, QObject* parent);

    std::unique_ptr<DockAreaSupport> d;
};

} // namespace QMainWindowHelpers
