// SPDX-License-Identifier: MIT
#pragma once

#include "signaltracker.h"

#include <memory>

namespace bandmonitor {

/// Detects and follows the signals of a recording while it is replayed.
class SignalWatch
{
public:
    /// Begins anew; null for none.
    void setRecording(std::shared_ptr<const Recording> recording);
    /// See SignalDetector::setThreshold(); false when it is this one already. Sweeps that were
    /// taken in stay: show the current one again.
    bool setThreshold(std::optional<double> levelDb);
    /// Takes in the sweeps after `previous` up to `position`. When `previous` is not the sweep that
    /// was shown last, or not before `position`, it begins anew some sweeps before `position`: the
    /// signals are those of that time.
    void showSweep(qsizetype position, qsizetype previous);

    std::span<const SignalTrack> tracks() const { return m_tracker.tracks(); }
    /// Null when there is no such track (any more).
    const SignalTrack* track(std::uint32_t id) const;
    /// The strongest of the signals that came up in the last showSweep() and are there now; null
    /// without one, and right after a beginning, when all signals are new.
    const SignalTrack* newcomer() const;
    /// Whether the last showSweep() was a beginning: all tracks are new then, and none went.
    bool hasBegunAnew() const { return m_begins; }
    /// The time of the sweep that was shown last.
    quint64 timeUs() const { return m_timeUs; }

private:
    qsizetype firstBefore(qsizetype position) const;

    std::shared_ptr<const Recording> m_recording;
    SignalDetector m_detector;
    SignalTracker m_tracker;
    qsizetype m_position = -1;
    quint64 m_timeUs = 0;
    std::uint32_t m_lastKnownId = 0;
    bool m_begins = true;
};

} // namespace bandmonitor
