// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>
#include <QWidget>

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
