// SPDX-License-Identifier: MIT
#pragma once

#include "docks/mode.h"
#include "model/signaltracker.h"
#include "panes/frequencytext.h"

#include <QObject>

#include <unordered_map>

namespace bandmonitor {

class EventLog;
class Jobs;
class Modes;
class SignalWatch;

/// Writes what happens in the application to its event log.
class EventRecorder : public QObject
{
    Q_OBJECT
public:
    /// All of them must outlive this object.
    EventRecorder(EventLog* log, const Jobs* jobs, const Modes* modes, const SignalWatch* watch,
                  QObject* parent = nullptr);
    ~EventRecorder() override;

public Q_SLOTS:
    void recordingOpened(const QString& fileName, qint64 sweeps, qint64 skippedLines);
    void recordingFailed(const QString& text);
    /// The watch has taken in another sweep: writes which followed signals came and which ones are
    /// no longer followed. At a beginning, when all signals are new, it only writes that they are.
    void sweepShown();
    /// Unit or resolution have changed.
    void refreshTexts();

private:
    void jobChanged(int id);
    void modeChanged(Mode mode);
    QString textOf(const Signal& signal) const;

    EventLog* m_log;
    const Jobs* m_jobs;
    const SignalWatch* m_watch;
    FrequencyText m_text;
    std::unordered_map<std::uint32_t, Signal> m_known; ///< By the number of the track.
    bool m_hasBegun = false; ///< That the signals are followed anew was the last about them.
};

} // namespace bandmonitor
