// SPDX-License-Identifier: MIT
#pragma once

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

/// Lets the timers fire that are to fire within so many milliseconds from now: timers fire in the
/// order of their times, and the last one is awaited.
inline void letTimersFire(int milliseconds = 0)
{
    QTimer last;
    const QSignalSpy fired(&last, &QTimer::timeout);
    last.setTimerType(Qt::PreciseTimer);
    last.start(milliseconds);
    QTRY_VERIFY(!fired.isEmpty());
}
