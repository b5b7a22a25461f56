// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAction;
class QMainWindow;
class QWidget;

namespace bandmonitor {

/// Has the key of a command work in the whole window and its floating docks, wherever the key does
/// not type and presses nothing. Owned by the window.
class PlayKey : public QObject
{
public:
    /// The key is the action's shortcut, also one that the operator chooses later.
    PlayKey(QAction& action, QMainWindow& window);
    ~PlayKey() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isOurs(const QWidget& widget) const;

    QAction& m_action;
    QMainWindow& m_window;
};

} // namespace bandmonitor
