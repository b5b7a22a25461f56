// SPDX-License-Identifier: MIT
#pragma once

#include "signaltracker.h"

#include <cstdint>
#include <vector>

namespace bandmonitor {

class SignalWatch;

/// Picks the new signals that stay: when they were above the threshold for three sweeps on end. A
/// signal is picked once until it has gone, however often it fades in between. What is there at a
/// beginning is not new.
class SignalAlarm
{
public:
    static constexpr int sweepsOnEnd = 3;
    /// A signal has gone when it was not seen for so long, and is no longer followed.
    static constexpr quint64 goneAfterUs = 30'000'000;

    /// Takes in the last sweep of the watch. The result is in order of frequency.
    std::vector<SignalTrack> takeIn(const SignalWatch& watch);
    /// Leaves out signals that overlap with this one from now on.
    void ignore(const Signal& signal);

private:
    /// A signal that is old or was picked.
    struct Known
    {
        std::uint32_t id = 0; ///< Of its track; 0 for none.
        Signal signal;
        quint64 lastSeenUs = 0;
        bool isFollowed = false; ///< Its track was among the last ones.
    };

    bool isIgnored(const Signal& signal) const;
    /// Whether a known signal is at the place of the track, which goes on with it if no other does.
    bool isKnown(const SignalTrack& track);
    void add(const SignalTrack& track);
    void forgetGone(quint64 timeUs);

    std::vector<Known> m_known;
    std::vector<Signal> m_ignored;
};

} // namespace bandmonitor
