// SPDX-License-Identifier: MIT
#include "dockarrangement.h"

#include "mainwindowhelpers.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QSet>
#include <QTabBar>

#include <algorithm>

namespace DockArrangement {

namespace {

QSet<const QMainWindow*>& windowsUnderWay()
{
    static QSet<const QMainWindow*> windows;
    return windows;
}

} // namespace

QList<QDockWidget*> candidates(const QMainWindow& mainWindow, Qt::DockWidgetArea area)
{
    return candidatesByArea(mainWindow, area).value(area);
}

QMap<Qt::DockWidgetArea, QList<QDockWidget*>> candidatesByArea(const QMainWindow& mainWindow,
                                                               QFlags<Qt::DockWidgetArea> areas)
{
    QMap<Qt::DockWidgetArea, QList<QDockWidget*>> found;
    // Docks that are no windows of their own are as hidden as the main window.
    if (!mainWindow.isVisible())
        return found;
    const auto isShownDocked = [](const QDockWidget& dock) {
        return dock.isVisible() && !dock.isFloating();
    };
    const QList<QDockWidget*> docks =
        QMainWindowHelpers::dockWidgets(mainWindow, isShownDocked, -1);
    for (QDockWidget* dock : docks) {
        const Qt::DockWidgetArea area = mainWindow.dockWidgetArea(dock);
        if (area != Qt::NoDockWidgetArea && areas.testFlag(area))
            found[area] << dock;
    }
    return found;
}

QRect geometryOf(const QList<QDockWidget*>& docks, const QMainWindow& mainWindow,
                 Qt::DockWidgetArea area)
{
    QRect united;
    for (const QDockWidget* dock : docks) {
        const QRect frame = dock->frameGeometry();
        if (frame.left() >= 0 && frame.top() >= 0)
            united |= frame;
    }
    const QList<QTabBar*> tabBars = QMainWindowHelpers::tabBarsInDockWidgetArea(mainWindow, area);
    for (const QTabBar* tabBar : tabBars)
        united |= tabBar->frameGeometry();
    return united;
}

void sortByTitle(QList<QDockWidget*>& docks)
{
    std::stable_sort(docks.begin(), docks.end(), [](const QDockWidget* a, const QDockWidget* b) {
        return a->windowTitle().localeAwareCompare(b->windowTitle()) < 0;
    });
}

Rearrangement::Rearrangement(const QMainWindow& mainWindow)
    : m_mainWindow(&mainWindow)
{
    windowsUnderWay().insert(m_mainWindow);
}

Rearrangement::~Rearrangement()
{
    windowsUnderWay().remove(m_mainWindow);
}

bool Rearrangement::isUnderWay(const QMainWindow& mainWindow)
{
    return windowsUnderWay().contains(&mainWindow);
}

} // namespace DockArrangement
