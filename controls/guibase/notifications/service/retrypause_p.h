// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>

/// Pauses that double from one to the next up to a limit.
class RetryPause
{
public:
    using Milliseconds = std::chrono::milliseconds;
    RetryPause(Milliseconds first, Milliseconds last)
        : m_first(first)
        , m_last(last)
        , m_next(first)
    {}

    Milliseconds next()
    {
        const Milliseconds pause = m_next;
        m_next = std::min(m_next * 2, m_last);
        m_sinceLast.start();
        return pause;
    }
    void reset() { m_next = m_first; }
    /// Begins anew when the last pause was given long ago.
    void resetAfter(Milliseconds time)
    {
        if (m_sinceLast.isValid() && m_sinceLast.hasExpired(time.count()))
            reset();
    }

private:
    Milliseconds m_first;
    Milliseconds m_last;
    Milliseconds m_next;
    QElapsedTimer m_sinceLast;
};
