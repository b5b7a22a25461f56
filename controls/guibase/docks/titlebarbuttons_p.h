// SPDX-License-Identifier: MIT
#pragma once

#include "dockpointer.h"

#include <QCoreApplication>
#include <QList>

#include <map>

class QAction;
class TitleBarButton;

/// The buttons of a dock's title bar: one for each of the bar's actions, one with a menu for the
/// actions without room, and those that float and close the dock. Their texts are the bar's.
class TitleBarButtons
{
    Q_DECLARE_TR_FUNCTIONS(EnhancedDockWidgetTitleBar)
public:
    /// The buttons are children of the bar.
    TitleBarButtons(QWidget& bar, QDockWidget& dock);
    ~TitleBarButtons();
    Q_DISABLE_COPY_MOVE(TitleBarButtons)

    /// Follows the dock's features, state and area, and the language.
    void followDock();
    /// Room on the line, in buttons: for everything, or with all actions in the menu.
    int neededCount(bool minimal) const;
    /// Chooses the buttons for this room (in buttons); those in the order of the line.
    const QList<TitleBarButton*>& choose(int room);
    /// Those that were chosen.
    const QList<TitleBarButton*>& shown() const { return m_shown; }
    /// Shows the chosen ones and hides the others, and sees to the tab order.
    void apply();

    void remove(QAction* action);
    /// The texts of an action, and whether it is visible, have changed.
    void follow(const QAction& action);
    /// Whether a change of this action can change the bar: not that of another area's.
    bool concerns(const QAction& action) const;
    /// Moves the focus along the line; false when the key does not do that.
    bool navigate(int key, bool leftIsNext);

private:
    /// Visible actions of the bar that concern the dock; those without icon at the end.
    QList<QAction*> visibleActions() const;
    int fixedCount() const;
    TitleBarButton& buttonFor(QAction& action);
    void makeMenuButton();
    void fillMenu();
    /// Keeps exactly one button in the tab order.
    void updateTabStop(TitleBarButton* preferred);

    QWidget& m_bar;
    DockPointer m_dock;
    Qt::DockWidgetArea m_area = Qt::NoDockWidgetArea;
    std::map<QAction*, TitleBarButton*> m_buttons;
    TitleBarButton* m_menuButton = nullptr; ///< Made when it is needed first.
    TitleBarButton* const m_floatButton;
    TitleBarButton* const m_closeButton;
    QList<QAction*> m_actionsInMenu;
    QList<TitleBarButton*> m_shown;
};
