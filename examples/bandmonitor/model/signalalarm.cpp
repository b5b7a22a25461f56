// SPDX-License-Identifier: MIT
#include "signalalarm.h"

#include "signalwatch.h"

#include <algorithm>
#include <utility>

namespace bandmonitor {

namespace {

constexpr std::size_t mostKnown = 4 * SignalTracker::maximumTracks;

bool overlap(const Signal& a, const Signal& b)
{
    return a.lowHz < b.highHz && b.lowHz < a.highHz;
}

} // namespace

std::vector<SignalTrack> SignalAlarm::takeIn(const SignalWatch& watch)
{
    constexpr std::uint64_t wanted = (1U << sweepsOnEnd) - 1;
    const bool begins = watch.hasBegunAnew();
    if (begins)
        m_known.clear();
    std::vector<SignalTrack> picked;
    for (const SignalTrack& track : watch.tracks()) {
        const Known now{track.id, track.signal, track.lastSeenUs, true};
        const auto known = std::ranges::find(m_known, track.id, &Known::id);
        if (known != m_known.end()) {
            *known = now;
            continue;
        }
        const bool isOld = begins || isKnown(track.signal);
        if (!isOld && (track.presence & wanted) != wanted)
            continue;
        if (m_known.size() == mostKnown)
            m_known.erase(m_known.begin());
        m_known.push_back(now);
        if (!isOld && !isIgnored(track.signal))
            picked.push_back(track);
    }
    forgetGone(watch.timeUs());
    return picked;
}

bool SignalAlarm::isKnown(const Signal& signal) const
{
    return std::ranges::any_of(
        m_known, [&signal](const Known& known) { return overlap(signal, known.signal); });
}

void SignalAlarm::forgetGone(quint64 timeUs)
{
    std::erase_if(m_known, [timeUs](Known& known) {
        known.lastSeenUs = std::min(known.lastSeenUs, timeUs); // clocks are put back
        return !std::exchange(known.isFollowed, false) && timeUs - known.lastSeenUs > goneAfterUs;
    });
}

void SignalAlarm::ignore(const Signal& signal)
{
    if (!isIgnored(signal))
        m_ignored.push_back(signal);
}

bool SignalAlarm::isIgnored(const Signal& signal) const
{
    return std::ranges::any_of(
        m_ignored, [&signal](const Signal& ignored) { return overlap(signal, ignored); });
}

} // namespace bandmonitor
