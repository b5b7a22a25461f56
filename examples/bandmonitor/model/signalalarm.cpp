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
    const bool begins = watch.hasBegunAnew();
    if (begins)
        m_known.clear();
    std::vector<const SignalTrack*> others;
    for (const SignalTrack& track : watch.tracks()) {
        const auto known = std::ranges::find(m_known, track.id, &Known::id);
        if (known == m_known.end()) {
            others.push_back(&track);
        } else if (overlap(known->signal, track.signal)) {
            *known = {track.id, track.signal, track.lastSeenUs, true};
        } else { // it may be another signal now, and the former one still be there
            known->id = 0;
            add(track);
        }
    }
    constexpr std::uint64_t wanted = (1U << sweepsOnEnd) - 1;
    std::vector<SignalTrack> picked;
    for (const SignalTrack* track : others) {
        // At a beginning all are old, also those that are side by side just now.
        if (!begins && (isKnown(*track) || (track->presence & wanted) != wanted))
            continue;
        add(*track);
        if (!begins && !isIgnored(track->signal))
            picked.push_back(*track);
    }
    forgetGone(watch.timeUs());
    return picked;
}

void SignalAlarm::add(const SignalTrack& track)
{
    if (m_known.size() == mostKnown)
        m_known.erase(std::ranges::min_element(m_known, {}, [](const Known& known) {
            return std::pair(known.isFollowed, known.lastSeenUs);
        }));
    m_known.push_back({track.id, track.signal, track.lastSeenUs, true});
}

bool SignalAlarm::isKnown(const SignalTrack& track)
{
    bool result = false;
    for (Known& known : m_known) {
        if (!overlap(known.signal, track.signal))
            continue;
        result = true;
        if (known.isFollowed)
            continue;
        known = {track.id, track.signal, track.lastSeenUs, true};
        break;
    }
    return result;
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
