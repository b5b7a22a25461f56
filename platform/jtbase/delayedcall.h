// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QElapsedTimer>
#include <QPointer>

#include <functional>

class QTimer;

/// Calls a function a while after the last of several requests, and at the latest `longestDelays`
/// such whiles after the first one.
///
/// Nothing is called without an application object and a running event loop, and nothing after this
/// object is gone. The function may destroy it. GUI thread only.
class JTBASE_EXPORT DelayedCall
{
public:
    /// Calls nothing until it is requested. The function must not be empty.
    explicit DelayedCall(std::function<void()> function);
    ~DelayedCall();
    DelayedCall(const DelayedCall&) = delete;
    DelayedCall& operator=(const DelayedCall&) = delete;

    /// Begins the delay anew, see the class.
    void request();
    /// Calls after so many milliseconds instead, whatever was requested before; 0: as soon as the
    /// event loop runs. Works with a negative delay too.
    void requestIn(int milliseconds);
    /// Forgets the requests.
    void cancel();
    /// Whether a call is on its way; false while a negative delay holds it back.
    bool isPending() const;

    /// In milliseconds, also for requests made before. Negative: they wait for another delay.
    void setDelay(int milliseconds);
    int delay() const { return m_delay; }

    /// In milliseconds; the other one counts delays.
    static constexpr int defaultDelay = 2000;
    static constexpr int longestDelays = 5;

private:
    std::function<void()> m_function;
    int m_delay = defaultDelay;
    bool m_isRequested = false;
    /// Belongs to the application object, which may be gone before this object.
    QPointer<QTimer> m_timer;
    QElapsedTimer m_sinceFirstRequest;
};
