// SPDX-License-Identifier: MIT
#include "dockarrangement_p.h"

#include "mainwindowhelpers.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QSet>

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
    const auto filter = [&](const QDockWidget& dock) {
        return dock.isVisible() && !dock.isFloating() && area != Qt::NoDockWidgetArea &&
               mainWindow.dockWidgetArea(const_cast<QDockWidget*>(&dock)) == area;
    };
    return QMainWindowHelpers::dockWidgets(mainWindow, filter, -1);
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
