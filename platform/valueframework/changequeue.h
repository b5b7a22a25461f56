// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/observable.h>

#include <bit>

/// Hands change codes to an operation, one after the other: those that come up while the operation
/// runs wait until it returns. The current value comes last; a code that waits already waits once.
class ChangeQueue
{
public:
    /// In calls of the operation.
    static constexpr int longestRun = 1000;

    /// How run() has ended.
    enum Outcome {
        Done,
        Waiting,  ///< The operation is running, and will get this code too.
        Restless, ///< Codes still come up after `longestRun` calls; the last ones are dropped.
        Gone,     ///< The operation has returned false, as it does when the queue is gone.
    };

    /// `code` is one of 0 to 31.
    template <typename Operation>
    Outcome run(TChangeCode code, Operation operation)
    {
        m_waiting |= 1U << code;
        if (m_isRunning)
            return Waiting;
        m_isRunning = true;
        for (int calls = 0; m_waiting != 0 && calls < longestRun; ++calls) {
            if (!operation(take()))
                return Gone;
        }
        m_isRunning = false;
        const bool isRestless = m_waiting != 0;
        m_waiting = 0;
        return isRestless ? Restless : Done;
    }

private:
    TChangeCode take()
    {
        constexpr unsigned last = 1U << ChangeCode::CurrentValue;
        const unsigned others = m_waiting & ~last;
        const TChangeCode code = others != 0 ? std::countr_zero(others) : ChangeCode::CurrentValue;
        m_waiting &= ~(1U << code);
        return code;
    }

    unsigned m_waiting = 0; ///< A bit for each code.
    bool m_isRunning = false;
};
