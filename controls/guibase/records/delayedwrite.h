// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QPointer>

#include <functional>

class QTimer;

/// Writes a while after the last of several changes, and at the latest `longestDelays` such whiles
/// after the first one, as long as an event loop runs.
class DelayedWrite
{
public:
    explicit DelayedWrite(std::function<void()> write);
    /// Writes nothing.
    ~DelayedWrite();
    DelayedWrite(const DelayedWrite&) = delete;
    DelayedWrite& operator=(const DelayedWrite&) = delete;

    void noteChange();
    /// Forgets the changes, which somebody else has written or taken back.
    void cancel();
    /// In milliseconds, also for changes that were noted before; negative: none are written.
    void setDelay(int milliseconds);

    static constexpr int defaultDelay = 2000;
    static constexpr int longestDelays = 10;

private:
    std::function<void()> m_write;
    int m_delay = defaultDelay;
    bool m_isPending = false;
    /// Belongs to the application object, which may be gone before this object.
    QPointer<QTimer> m_timer;
    QElapsedTimer m_sinceFirstChange;
};
