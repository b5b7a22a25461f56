// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/windowsystem.h>

#include <QTest>
#include <QWidget>

/// Waits until the window is there, and active where there is somebody to activate it: a Wayland
/// session without a keyboard does not.
[[nodiscard]] inline bool windowIsReady(QWidget& window)
{
    return WindowSystem::placesWindows() ? QTest::qWaitForWindowActive(&window)
                                         : QTest::qWaitForWindowExposed(&window);
}

/// Answers in place of the window system, as long as it lives, that nobody places windows.
class NoPlaces
{
public:
    NoPlaces() { qputenv("GUIBASE_PLACES_WINDOWS", "0"); }
    ~NoPlaces() { qunsetenv("GUIBASE_PLACES_WINDOWS"); }
    Q_DISABLE_COPY_MOVE(NoPlaces)
};

/// Waits until the window manager has done what was asked of it so far, and this program has heard
/// of it: it works in order, so that is when it shows one window more. False when it never does.
[[nodiscard]] inline bool windowManagerIsReady()
{
    QWidget last;
    last.setAttribute(Qt::WA_ShowWithoutActivating);
    last.show();
    const bool isReady = QTest::qWaitForWindowExposed(&last);
    QCoreApplication::processEvents();
    return isReady;
}
