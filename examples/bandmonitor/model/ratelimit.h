// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <optional>

namespace bandmonitor {

/// Lets a few through in any minute.
class RateLimit
{
public:
    using Time = std::chrono::steady_clock::time_point;
    static constexpr std::size_t most = 3;
    static constexpr std::chrono::minutes window{1};

    /// Whether one more may pass now; it counts then. Times must not go back.
    bool pass(Time now = std::chrono::steady_clock::now())
    {
        std::optional<Time>& oldest = m_times[m_next];
        if (oldest && now - *oldest < window)
            return false;
        oldest = now;
        m_next = (m_next + 1) % most;
        return true;
    }

private:
    std::array<std::optional<Time>, most> m_times; ///< Of those that passed last, as a ring.
    std::size_t m_next = 0;
};

} // namespace bandmonitor
