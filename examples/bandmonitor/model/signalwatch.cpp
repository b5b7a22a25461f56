// SPDX-License-Identifier: MIT
#include "signalwatch.h"

#include <algorithm>

namespace bandmonitor {

namespace {

/// After a jump, signals are looked for in so many sweeps before: as many as the tracker knows
/// of, or fewer of wide sweeps, so that a jump is felt at once.
constexpr qsizetype mostSweepsBefore = 63;
constexpr qsizetype leastSweepsBefore = SignalTracker::knownAfterSweeps;
constexpr qsizetype mostBinsBefore = 400'000;

} // namespace

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
    if (!m_recording || position < m_recording->first() || position >= m_recording->count())
        return;
    const bool isJump = previous < 0 || previous != m_position || previous >= position;
    if (isJump)
        m_tracker.clear();
    m_begins = isJump;
    m_lastKnownId = m_tracker.lastId();
    const qsizetype first = isJump ? firstBefore(position) : previous + 1;
    for (qsizetype index = first; index <= position; ++index) {
        const Sweep sweep = m_recording->sweep(index);
        m_tracker.add(sweep.timeUs, m_detector.detect(sweep));
    }
    m_position = position;
    m_timeUs = m_recording->sweep(position).timeUs;
}

qsizetype SignalWatch::firstBefore(qsizetype position) const
{
    const auto bins = static_cast<qsizetype>(m_recording->sweep(position).binCount);
    const qsizetype sweeps = std::clamp(mostBinsBefore / std::max<qsizetype>(bins, 1),
                                        leastSweepsBefore, mostSweepsBefore);
    return std::max(position - sweeps, m_recording->first());
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
