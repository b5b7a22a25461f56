// SPDX-License-Identifier: MIT
#include "signalwatch.h"

#include <algorithm>

namespace bandmonitor {

void SignalWatch::setRecording(std::shared_ptr<const Recording> recording)
{
    m_recording = std::move(recording);
    m_tracker.clear();
    m_position = -1;
    m_begins = true;
}

bool SignalWatch::setThreshold(std::optional<double> levelDb)
{
    if (levelDb == m_detector.threshold())
        return false;
    m_detector.setThreshold(levelDb);
    return true;
}

void SignalWatch::showSweep(qsizetype position, qsizetype previous)
{
    if (!m_recording || position < 0 || position >= m_recording->count())
        return;
    if (position <= m_position)
        m_tracker.clear();
    m_begins = m_tracker.tracks().empty();
    m_lastKnownId = m_tracker.lastId();
    const qsizetype first = previous < 0 || previous >= position ? position : previous + 1;
    for (qsizetype index = first; index <= position; ++index) {
        const Sweep sweep = m_recording->sweep(index);
        m_tracker.add(sweep.timeUs, m_detector.detect(sweep));
    }
    m_position = position;
}

const SignalTrack* SignalWatch::track(std::uint32_t id) const
{
    const auto all = m_tracker.tracks();
    const auto found = std::ranges::find(all, id, &SignalTrack::id);
    return found == all.end() ? nullptr : &*found;
}

const SignalTrack* SignalWatch::newcomer() const
{
    const SignalTrack* result = nullptr;
    for (const SignalTrack& track : m_tracker.tracks()) {
        if (!m_begins && track.id > m_lastKnownId && track.isPresent() &&
            (result == nullptr || track.signal.peakDb > result->signal.peakDb))
            result = &track;
    }
    return result;
}

} // namespace bandmonitor
