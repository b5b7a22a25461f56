// SPDX-License-Identifier: MIT
#pragma once

#include "bearings.h"
#include "eventlog.h"
#include "jobs.h"
#include "liveinput.h"
#include "panenames.h"
#include "recordingloader.h"
#include "recordingsaver.h"
#include "replay.h"
#include "signalwatch.h"

#include <radiopanes/core/levelline.h>

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace bandmonitor {

/// The work with one recording after the other: loads them or reads them live, replays the one that
/// is open, and keeps signals, bearings, jobs and events in step with it. Windows only show a
/// session.
class Session : public QObject
{
    Q_OBJECT
public:
    explicit Session(QObject* parent = nullptr);
    ~Session() override;

    /// Begins to load the recording; opened(), openFailed() or openCancelled() follows from the
    /// event loop, mostly after begun(). The former recording stays until then. Live input that is
    /// shown ends when the recording begins.
    void open(const QString& path);
    void cancelOpening() { m_loader.cancel(); }

    /// Has what is live end, and then begins to read the source; begun() or liveFailed() follows.
    /// The history takes at most so many bytes.
    void openLive(std::unique_ptr<LiveSource> source,
                  std::size_t historyBytes = LiveInput::defaultHistory);
    /// Has what is live end; liveEnded() or liveFailed() follows.
    void stopLive();
    /// What is live, or was it last; null at first.
    const LiveInput* live() const { return m_live.get(); }
    /// Whether live input is being read, or waited for.
    bool isLive() const { return m_live && m_live->state() != LiveInput::State::Ended; }

    /// Whether the recording that is open came live.
    bool showsLive() const { return m_live && m_live->recording() == m_recording; }

    /// Saves the whole recording; see RecordingSaver.
    void save(const QString& path, const QByteArray& head);
    RecordingSaver& saver() { return m_saver; }

    /// What is being loaded, or was loaded last.
    const RecordingLoader& loader() const { return m_loader; }
    /// The recording that is open; null at first.
    const std::shared_ptr<const Recording>& recording() const { return m_recording; }
    /// Recordings are counted from 1; 0 at first.
    quint64 recordingNumber() const { return m_recordingNumber; }
    /// The name of its file, without folder, or of its live source.
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
    /// The first sweeps of the recording are there and one was shown. It may still grow.
    void begun();
    /// The recording has more sweeps.
    void grown();
    /// The recording has been loaded as a whole.
    void opened();
    /// It could not be opened; `text` is one line for the user.
    void openFailed(const QString& text);
    /// cancelOpening() has come in time. What was loaded until then stays.
    void openCancelled();
    /// live() is another one, is in another state, or has other figures.
    void liveChanged();
    /// Live input has ended; what came stays. `text` is one line for the user.
    void liveEnded(const QString& text);
    /// Live input has ended by itself before its first sweep; `text` is one line for the user.
    void liveFailed(const QString& text);
    /// The sweep at `position` is to be shown; signals and bearings are those of this sweep. The
    /// sweeps from `previous + 1` on were played; with -1 none was, as after a jump.
    void sweepShown(qsizetype position, qsizetype previous);
    /// See referenceLevels().
    void referenceLevelsChanged();

private:
    void loadProgress(qint64 done, qint64 total);
    void loaded();
    void loadingEnded();
    void startLive(std::unique_ptr<LiveInput> live);
    void liveGrown();
    void liveInputEnded(const QString& reason);
    void takeOver(std::shared_ptr<const Recording> recording, const QString& name,
                  Replay::Growth growth);
    void showSweep(qsizetype position, qsizetype previous);

    RecordingLoader m_loader;
    RecordingSaver m_saver;
    std::unique_ptr<LiveInput> m_live;
    std::unique_ptr<LiveInput> m_nextLive; ///< Waits for the end of m_live.
    bool m_hasLiveBegun = false;
    QElapsedTimer m_sinceGrown;
    std::shared_ptr<const Recording> m_recording;
    quint64 m_recordingNumber = 0;
    QString m_fileName;
    Replay m_replay;
    SignalWatch m_watch;
    Bearings m_bearings;
    EventLog m_events;
    Jobs m_jobs;
    std::vector<LevelPoint> m_referenceLevels;
};

} // namespace bandmonitor
