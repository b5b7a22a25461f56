// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QRect>

class QDockWidget;
class QMainWindow;

namespace DockArrangement {

/// The visible docks that lie docked in exactly this area, in child order.
QList<QDockWidget*> candidates(const QMainWindow& mainWindow, Qt::DockWidgetArea area);
/// The same for each single area that is asked for, found in one walk over the docks.
QMap<Qt::DockWidgetArea, QList<QDockWidget*>> candidatesByArea(const QMainWindow& mainWindow,
                                                               QFlags<Qt::DockWidgetArea> areas);
/// The rectangle around these visible docks of the area and the area's tab bars; see
/// QMainWindowHelpers::dockWidgetAreaGeometry().
QRect geometryOf(const QList<QDockWidget*>& docks, const QMainWindow& mainWindow,
                 Qt::DockWidgetArea area);
/// Sorts by window title, as the user's language orders texts; equal titles keep their order.
void sortByTitle(QList<QDockWidget*>& docks);

/// Marks a main window for as long as its docks are being rearranged. What the docks do meanwhile
/// is passing and says nothing about the layout; nor can another rearrangement begin.
class Rearrangement
{
public:
    explicit Rearrangement(const QMainWindow& mainWindow);
    ~Rearrangement();
    Rearrangement(const Rearrangement&) = delete;
    Rearrangement& operator=(const Rearrangement&) = delete;

    static bool isUnderWay(const QMainWindow& mainWindow);

private:
    const QMainWindow* m_mainWindow;
};

} // namespace DockArrangement
