// SPDX-License-Identifier: MIT
#include "mainwindowhelpers.h"

#include "dockarrangement.h"
#include "docksizes.h"

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QSet>
#include <QTabBar>
#include <QToolBar>

#include <array>

namespace QMainWindowHelpers {

namespace {

template <class Child>
QList<Child*> childrenOfWindow(const QMainWindow& mainWindow,
                               const std::function<bool(const Child&)>& filter, int maxCount)
{
    QList<Child*> accepted;
    for (QObject* child : mainWindow.children()) {
        if (maxCount == 0)
            break;
        auto* candidate = qobject_cast<Child*>(child);
        if (candidate == nullptr || !filter(*candidate))
            continue;
        accepted << candidate;
        --maxCount;
    }
    return accepted;
}

/// The dock of a tab. The toolkit notes each tab's dock in the tab's data; the title is
/// what remains for tab bars that somebody else has filled.
QDockWidget* dockOfTab(const QTabBar& tabBar, int index, const QMainWindow& mainWindow)
{
    const auto noted = tabBar.tabData(index).value<quintptr>();
    const QList<QDockWidget*> docks = dockWidgets(
        mainWindow,
        [noted](const QDockWidget& dock) { return reinterpret_cast<quintptr>(&dock) == noted; }, 1);
    return docks.isEmpty() ? findDockWidgetByWindowTitle(mainWindow, tabBar.tabText(index))
                           : docks.first();
}

bool isWindowOrAny(const QMainWindow* window, const QMainWindow* wanted)
{
    return window != nullptr && (wanted == nullptr || window == wanted);
}

/// The docks that share a tab bar with a non-floating dock of the area.
QSet<QDockWidget*> tabbedDocks(const QMainWindow& mainWindow, Qt::DockWidgetArea area)
{
    QSet<QDockWidget*> tabbed;
    const QList<QDockWidget*> docks = dockWidgets(mainWindow, area, false);
    for (QDockWidget* dock : docks) {
        if (tabbed.contains(dock))
            continue; // its whole group is in already
        const QList<QDockWidget*> partners = mainWindow.tabifiedDockWidgets(dock);
        if (!partners.isEmpty())
            tabbed.insert(dock);
        for (QDockWidget* partner : partners)
            tabbed.insert(partner);
    }
    return tabbed;
}

template <class Area>
QList<Area> listAreas(QFlags<Area> areas, const std::array<Area, 4>& order)
{
    QList<Area> single;
    for (const Area area : order) {
        if (areas.testFlag(area))
            single << area;
    }
    return single;
}

} // namespace

QList<QDockWidget*> dockWidgets(const QMainWindow& mainWindow,
                                const std::function<bool(const QDockWidget&)>& filter, int maxCount)
{
    return childrenOfWindow<QDockWidget>(mainWindow, filter, maxCount);
}

QList<QDockWidget*> dockWidgets(const QMainWindow& mainWindow)
{
    return dockWidgets(
        mainWindow, [](const QDockWidget&) { return true; }, -1);
}

QList<QToolBar*> toolBars(const QMainWindow& mainWindow,
                          const std::function<bool(const QToolBar&)>& filter, int maxCount)
{
    return childrenOfWindow<QToolBar>(mainWindow, filter, maxCount);
}

QList<QDockWidget*> dockWidgets(const QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas,
                                bool includeFloating)
{
    const auto filter = [&](const QDockWidget& dock) {
        // The toolkit takes the dock as mutable but only looks it up.
        return (includeFloating || !dock.isFloating()) &&
               areas.testAnyFlags(mainWindow.dockWidgetArea(const_cast<QDockWidget*>(&dock)));
    };
    return dockWidgets(mainWindow, filter, -1);
}

QList<QToolBar*> toolBars(const QMainWindow& mainWindow, QFlags<Qt::ToolBarArea> areas,
                          bool includeFloating)
{
    const auto filter = [&](const QToolBar& toolBar) {
        return (includeFloating || !toolBar.isFloating()) &&
               areas.testAnyFlags(mainWindow.toolBarArea(&toolBar));
    };
    return toolBars(mainWindow, filter, -1);
}

QDockWidget* findDockWidgetByWindowTitle(const QMainWindow& mainWindow, const QString& title)
{
    const QList<QDockWidget*> docks = dockWidgets(
        mainWindow, [&title](const QDockWidget& dock) { return dock.windowTitle() == title; }, 1);
    return docks.isEmpty() ? nullptr : docks.first();
}

QDockWidget* findParentDockWidget(const QWidget& widget, const QMainWindow* mainWindow)
{
    if (const auto* tabBar = qobject_cast<const QTabBar*>(&widget)) {
        const auto* window = qobject_cast<const QMainWindow*>(tabBar->parentWidget());
        if (isWindowOrAny(window, mainWindow))
            return tabBar->currentIndex() < 0 ? nullptr
                                              : dockOfTab(*tabBar, tabBar->currentIndex(), *window);
    }
    for (const QWidget* ancestor = &widget; ancestor != nullptr;
         ancestor = ancestor->parentWidget()) {
        const auto* dock = qobject_cast<const QDockWidget*>(ancestor);
        if (dock != nullptr &&
            isWindowOrAny(qobject_cast<const QMainWindow*>(dock->parentWidget()), mainWindow))
            return const_cast<QDockWidget*>(dock);
    }
    return nullptr;
}

QList<QTabBar*> tabBarsInDockWidgetArea(const QMainWindow& mainWindow, Qt::DockWidgetArea area)
{
    // Most windows have none, and to look for tabbed docks takes longer.
    const auto any = [](const QTabBar&) { return true; };
    if (childrenOfWindow<QTabBar>(mainWindow, any, 1).isEmpty())
        return {};
    const QSet<QDockWidget*> docks = tabbedDocks(mainWindow, area);
    if (docks.isEmpty())
        return {};
    const auto hasDock = [&](const QTabBar& tabBar) {
        for (int i = 0; i < tabBar.count(); ++i) {
            if (docks.contains(dockOfTab(tabBar, i, mainWindow)))
                return true;
        }
        return false;
    };
    return childrenOfWindow<QTabBar>(mainWindow, hasDock, -1);
}

QRect dockWidgetAreaGeometry(const QMainWindow& mainWindow, Qt::DockWidgetArea area)
{
    QList<QDockWidget*> docks = dockWidgets(mainWindow, area, false);
    docks.removeIf([](const QDockWidget* dock) { return !dock->isVisible(); });
    return DockArrangement::geometryOf(docks, mainWindow, area);
}

QList<QMainWindow*> topLevelMainWindows()
{
    QList<QMainWindow*> windows;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (auto* window = qobject_cast<QMainWindow*>(widget))
            windows << window;
    }
    return windows;
}

void setDockWidgetSize(QMainWindow& mainWindow, QDockWidget& dock, const QSize& size)
{
    setDockWidgetSizes(mainWindow, {{&dock, size}});
}

void setDockWidgetSize(QMainWindow& mainWindow, QDockWidget& dock, int width, int height)
{
    setDockWidgetSize(mainWindow, dock, QSize(width, height));
}

void setDockWidgetSizes(QMainWindow& mainWindow, const QList<QPair<QDockWidget*, QSize>>& sizes)
{
    DockSizes::FrozenWindow(mainWindow).giveSizes(sizes, DockSizes::Squeeze::FromCurrentSize);
}

QList<Qt::DockWidgetArea> listDockWidgetAreas(QFlags<Qt::DockWidgetArea> areas)
{
    return listAreas<Qt::DockWidgetArea>(areas, {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                                 Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea});
}

QList<Qt::ToolBarArea> listToolBarAreas(QFlags<Qt::ToolBarArea> areas)
{
    return listAreas<Qt::ToolBarArea>(areas, {Qt::LeftToolBarArea, Qt::RightToolBarArea,
                                              Qt::TopToolBarArea, Qt::BottomToolBarArea});
}

} // namespace QMainWindowHelpers
