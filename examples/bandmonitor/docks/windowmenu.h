// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

class QDockWidget;

namespace bandmonitor {

class PanelDocks;

/// The menu for everything that can be done with the panels; with it, the keyboard reaches all but
/// dragging.
class WindowMenu : public QMenu
{
    Q_OBJECT
public:
    /// `centre` takes the focus in turn with the panels. Both must outlive the menu, and all panels
    /// must be known.
    WindowMenu(PanelDocks* panels, QWidget* centre, QWidget* parent);
    ~WindowMenu() override;

private:
    void addPanels();
    void addAreas();
    void addActivePanel();
    QAction* addActiveEntry(const QString& text, const QKeySequence& key,
                            void (WindowMenu::*perform)(QDockWidget&), bool checkable);
    void refresh();
    void toggleFloating(QDockWidget& dock);
    void toggleMaximized(QDockWidget& dock);
    void toggleAutoHide(QDockWidget& dock);
    void closePanel(QDockWidget& dock);

    PanelDocks* m_panels;
    QWidget* m_centre;
    QMenu* m_tabify = nullptr;
    QMenu* m_tile = nullptr;
    QAction* m_float = nullptr;
    QAction* m_maximize = nullptr;
    QAction* m_autoHide = nullptr;
    QList<QAction*> m_activeEntries;
};

} // namespace bandmonitor
