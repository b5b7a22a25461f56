// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>

class QDockWidget;
class QMainWindow;

/// Lays docks out as a grid with the toolkit's own operations. Receivers of the toolkit's signals,
/// and what runs while events are processed, may delete any of the docks, and the window.
namespace GridPlacement {

using GuardedDocks = QList<QPointer<QDockWidget>>;

enum class Result {
    Done,
    DocksLost, ///< Some are dead and out of the list; the others have no orderly place.
};

/// Takes the docks out of the layout and puts them into the area as a grid, row by row.
Result place(const QPointer<QMainWindow>& window, Qt::DockWidgetArea area, GuardedDocks& docks,
             int columns);
/// Shows the docks and processes events, user input and sockets excluded, with the window's layout
/// at rest until the end. Docks that die leave null pointers.
void show(const QPointer<QMainWindow>& window, const GuardedDocks& docks);

} // namespace GridPlacement
