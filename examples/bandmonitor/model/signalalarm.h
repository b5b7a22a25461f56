// SPDX-License-Identifier: MIT
#pragma once

#include "signaltracker.h"

#include <cstdint>
#include <set>
#include <vector>

namespace bandmonitor {

class SignalWatch;

/// Picks the new signals that stay: each once, when it was above the threshold for three sweeps on
/// end. What is there at a beginning is not new.
class SignalAlarm
{
public:
    static constexpr int sweepsOnEnd = 3;

    /// Takes in the last sweep of the watch. The result is in order of frequency.
    std::vector<SignalTrack> takeIn(const SignalWatch& watch);
    /// Leaves out signals that overlap with this one from now on.
    void ignore(const Signal& signal);

private:
    bool isIgnored(const Signal& signal) const;

    std::set<std::uint32_t> m_known; ///< The numbers of tracks that are old or were picked.
    std::vector<Signal> m_ignored;
};

} // namespace bandmonitor
