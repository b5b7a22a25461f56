// SPDX-License-Identifier: MIT
#pragma once

#include "bearings.h"
#include "eventlog.h"
#include "jobs.h"
#include "panenames.h"
#include "recordingloader.h"
#include "replay.h"
#include "signalwatch.h"

#include <radiopanes/core/levelline.h>

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

namespace bandmonitor {

/// The work with one recording after the other: loads them, replays the one that is open, and keeps
/// signals, bearings, jobs and events in step with it. Windows only show a session.
class Session : public QObject
{
    Q_OBJECT
public:
    explicit Session(QObject* parent = nullptr);
    ~Session() override;

    /// Begins to load the recording; opened(), openFailed() or openCancelled() follows from the
    /// event loop. Until then the former recording stays.
    void open(const QString& path);
    void cancelOpening() { m_loader.cancel(); }

    /// What is being loaded, or was loaded last.
    const RecordingLoader& loader() const { return m_loader; }
    /// The recording that is open; null at first.
    const std::shared_ptr<const Recording>& recording() const { return m_recording; }
    /// The name of its file, without folder.
    const QString& fileName() const { return m_fileName; }

    Replay& replay() { return m_replay; }
    const SignalWatch& watch() const { return m_watch; }
    const Bearings& bearings() const { return m_bearings; }
    EventLog& events() { return m_events; }
    Jobs& jobs() { return m_jobs; }

    /// In order of frequency; empty for none, as at first.
    const std::vector<LevelPoint>& referenceLevels() const { return m_referenceLevels; }
    void setReferenceLevels(const std::vector<LevelPoint>& points);
    /// See SignalDetector::setThreshold(). The signals of the current sweep are detected anew.
    void setThreshold(std::optional<double> levelDb);

Q_SIGNALS:
    /// `done` of `total` bytes of the file are read.
    void openProgress(qint64 done, qint64 total);
    /// Another recording is open now: time to let go of the former one. Its first sweep follows.
    void recordingChanged();
    /// The recording is open, and its first sweep was shown.
    void opened();
    /// It could not be opened; `text` is one line for the user.
    void openFailed(const QString& text);
    /// cancelOpening() has come in time.
    void openCancelled();
    /// The sweep at `position` is to be shown; signals and bearings are those of this sweep. The
    /// sweeps from `previous + 1` on were played; with -1 none was, as after a jump.
    void sweepShown(qsizetype position, qsizetype previous);
    /// See referenceLevels().
    void referenceLevelsChanged();

private:
    void takeOver();
    void showSweep(qsizetype position, qsizetype previous);

    RecordingLoader m_loader;
    std::shared_ptr<const Recording> m_recording;
    QString m_fileName;
    Replay m_replay;
    SignalWatch m_watch;
    Bearings m_bearings;
    EventLog m_events;
    Jobs m_jobs;
    std::vector<LevelPoint> m_referenceLevels;
};

} // namespace bandmonitor
