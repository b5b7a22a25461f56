// SPDX-License-Identifier: MIT
#include "signalalarm.h"

#include "signalwatch.h"

#include <algorithm>

namespace bandmonitor {

std::vector<SignalTrack> SignalAlarm::takeIn(const SignalWatch& watch)
{
    constexpr std::uint64_t wanted = (1U << sweepsOnEnd) - 1;
    std::vector<SignalTrack> picked;
    std::set<std::uint32_t> known;
    for (const SignalTrack& track : watch.tracks()) {
        const bool isOld = watch.hasBegunAnew() || m_known.contains(track.id);
        if (!isOld && (track.presence & wanted) != wanted)
            continue;
        known.insert(track.id);
        if (!isOld && !isIgnored(track.signal))
            picked.push_back(track);
    }
    m_known = std::move(known);
    return picked;
}

void SignalAlarm::ignore(const Signal& signal)
{
    if (!isIgnored(signal))
        m_ignored.push_back(signal);
}

bool SignalAlarm::isIgnored(const Signal& signal) const
{
    return std::any_of(m_ignored.begin(), m_ignored.end(), [&signal](const Signal& ignored) {
        return signal.lowHz < ignored.highHz && ignored.lowHz < signal.highHz;
    });
}

} // namespace bandmonitor
