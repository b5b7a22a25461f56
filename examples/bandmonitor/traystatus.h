// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/tray/trayicon.h>

#include <QObject>

namespace bandmonitor {

class MainWindow;

/// The icon in the tray: it tells whether live input comes. An entry of its menu lets the program
/// go on without its window.
class TrayStatus : public QObject
{
    Q_OBJECT
public:
    /// A child of the window.
    explicit TrayStatus(MainWindow* window);
    ~TrayStatus() override;

    const TrayIcon& icon() const { return m_icon; }

private:
    void addStayEntry();
    void refresh();

    MainWindow* m_window;
    TrayIcon m_icon;
    QString m_failure; ///< Of the live input that was read last; empty when it did not fail.
};

} // namespace bandmonitor
