// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QDockWidget;
class QMainWindow;

/// Keeps the keys out of docks that lie behind another tab of a main window: Tab passes over them,
/// and when a tab covers the dock with the focus, the dock in front gets it. Belongs to the window.
class CoveredDocks : public QObject
{
    Q_OBJECT
public:
    /// Once for each window.
    static void install(QMainWindow& mainWindow);
    ~CoveredDocks() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Policy
    {
        QPointer<QWidget> widget;
        Qt::FocusPolicy policy;
    };

    explicit CoveredDocks(QMainWindow& mainWindow);
    void watch(QWidget* focus);
    /// Lets the key that is being handled not lead into covered docks.
    void passOver();
    void restorePolicies();
    void moveFocusTo(QDockWidget& front);

    QMainWindow& m_mainWindow;
    QPointer<QWidget> m_watched;    ///< The widget with the focus, when it is in the window.
    std::vector<Policy> m_policies; ///< Those that the widgets get back.
};
