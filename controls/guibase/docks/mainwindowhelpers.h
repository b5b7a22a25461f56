// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QList>
#include <QPair>
#include <QRect>
#include <QSize>
#include <QString>

#include <functional>

class QDockWidget;
class QMainWindow;
class QTabBar;
class QToolBar;
class QWidget;

/// Functions that find, measure and size the docks, tool bars and dock tab bars of a main window.
///
/// Only direct children of the main window count: a dock inside another widget, or for the moment
/// in a floating group of docks, is not found. Nothing here reports errors; what is not found is
/// null or an empty list.
namespace QMainWindowHelpers {

/// The docks that the filter accepts, in child order; the search ends after `maxCount` of them
/// (-1: no limit). An empty filter throws std::bad_function_call when there is a dock to ask about.
GUIBASE_EXPORT QList<QDockWidget*>
dockWidgets(const QMainWindow& mainWindow, const std::function<bool(const QDockWidget&)>& filter,
            int maxCount);
/// All docks of the window, in child order.
GUIBASE_EXPORT QList<QDockWidget*> dockWidgets(const QMainWindow& mainWindow);
/// The tool bars that the filter accepts; otherwise as dockWidgets().
GUIBASE_EXPORT QList<QToolBar*> toolBars(const QMainWindow& mainWindow,
                                         const std::function<bool(const QToolBar&)>& filter,
                                         int maxCount);
/// The docks of the areas, hidden ones too. A floating dock belongs to the area it came from.
GUIBASE_EXPORT QList<QDockWidget*>
dockWidgets(const QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas, bool includeFloating);
/// The tool bars of the areas, hidden ones too.
GUIBASE_EXPORT QList<QToolBar*> toolBars(const QMainWindow& mainWindow,
                                         QFlags<Qt::ToolBarArea> areas, bool includeFloating);

/// The first dock with exactly this title, or null.
GUIBASE_EXPORT QDockWidget* findDockWidgetByWindowTitle(const QMainWindow& mainWindow,
                                                        const QString& title);
/// The dock that the widget is, or lies in, or null. For a tab bar of the main window's docks it is
/// the dock of the current tab. With `mainWindow` only docks of that window count.
GUIBASE_EXPORT QDockWidget* findParentDockWidget(const QWidget& widget,
                                                 const QMainWindow* mainWindow);

/// The tab bars that the docks of the area share.
GUIBASE_EXPORT QList<QTabBar*> tabBarsInDockWidgetArea(const QMainWindow& mainWindow,
                                                       Qt::DockWidgetArea area);
/// The rectangle, in pixels of the main window, around the visible docks of the area and their tab
/// bars; a null rectangle without any. Docks behind other tabs are parked at negative positions and
/// do not count.
GUIBASE_EXPORT QRect dockWidgetAreaGeometry(const QMainWindow& mainWindow, Qt::DockWidgetArea area);

/// All main windows among the application's top-level widgets.
GUIBASE_EXPORT QList<QMainWindow*> topLevelMainWindows();

/// Gives one docked widget this size; see setDockWidgetSizes().
GUIBASE_EXPORT void setDockWidgetSize(QMainWindow& mainWindow, QDockWidget& dock,
                                      const QSize& size);
GUIBASE_EXPORT void setDockWidgetSize(QMainWindow& mainWindow, QDockWidget& dock, int width,
                                      int height);
/// Gives docked widgets these sizes (pixels), as far as the layout has room. A width or height of 0
/// or less leaves that dimension alone; null docks are skipped. The main window keeps its size, and
/// the docks their minimum and maximum sizes. Events other than user input and sockets are
/// processed meanwhile; docks, and even the main window, may die in them.
GUIBASE_EXPORT void setDockWidgetSizes(QMainWindow& mainWindow,
                                       const QList<QPair<QDockWidget*, QSize>>& sizes);

/// The single areas in the flags, in the order left, right, top, bottom.
GUIBASE_EXPORT QList<Qt::DockWidgetArea> listDockWidgetAreas(QFlags<Qt::DockWidgetArea> areas);
GUIBASE_EXPORT QList<Qt::ToolBarArea> listToolBarAreas(QFlags<Qt::ToolBarArea> areas);

} // namespace QMainWindowHelpers
