// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class QAction;
class QDockWidget;
class QMainWindow;

namespace bandmonitor {

/// Title-bar actions of a dock that tabify and tile the docks of the area where it stands; each is
/// seen while that is possible. A child of the dock.
class AreaActions : public QObject
{
    Q_OBJECT
public:
    /// The window must have its tabify and tile supports.
    AreaActions(QMainWindow& window, QDockWidget& dock);
    ~AreaActions() override;

    QList<QAction*> actions() const { return {m_tabify, m_tile}; }

private:
    void refresh();
    Qt::DockWidgetArea area() const;

    QMainWindow& m_window;
    QDockWidget& m_dock;
    QAction* m_tabify;
    QAction* m_tile;
};

} // namespace bandmonitor
