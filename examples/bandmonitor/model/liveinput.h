// SPDX-License-Identifier: MIT
#pragma once

#include "floodgate.h"
#include "livesource.h"
#include "livewatch.h"
#include "recordingparser.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

namespace bandmonitor {

/// Reads sweeps from a source as they come into a recording, of which the oldest go when its memory
/// is full. It reads in short slices of the event loop's time and tells of new sweeps at most 40
/// times a second. Signals come from the event loop only.
class LiveInput : public QObject
{
    Q_OBJECT
public:
    enum class State {
        Waiting, ///< For the first sweep, of a source that begins anew too.
        Running,
        Stalled, ///< No sweep has come for unusually long.
        Ended,   ///< All that came was read.
    };
    static constexpr std::size_t defaultHistory = std::size_t{512} << 20;

    /// `historyBytes` bounds the memory of the recording.
    explicit LiveInput(std::unique_ptr<LiveSource> source,
                       std::size_t historyBytes = defaultHistory, QObject* parent = nullptr);
    ~LiveInput() override;

    /// To be called once.
    void start();
    /// Has the source end in good order; ended() follows. What still comes is not read any more.
    void stop();

    QString name() const { return m_source->name(); }
    State state() const { return m_state; }
    bool isStopped() const { return m_isStopped; }
    const LiveWatch& watch() const { return m_watch; }
    std::shared_ptr<const Recording> recording() const { return m_recording; }
    /// The oldest sweep that may stay.
    qsizetype firstToKeep() const { return m_recording->firstWithin(m_historyBytes); }
    /// Takes out the sweeps before this one. Nobody may use them any more.
    void dropBefore(qsizetype index) { m_recording->dropBefore(index); }

    /// How long a slice of reading may take; 8 ms by default.
    void setSliceTime(std::chrono::milliseconds time) { m_sliceTime = time; }
    /// After a silence of this time a first sweep counts as complete; 1 s by default.
    void setSettleTime(std::chrono::milliseconds time) { m_settle.setInterval(time); }

Q_SIGNALS:
    /// The recording has more sweeps.
    void grown();
    /// Another state, or other figures in watch(); about four times a second.
    void statusChanged();
    /// One line for the operator; floods are summed up.
    void remarked(const QString& text);
    /// Nothing more will come; `reason` is one line for the operator. Where lines came and no
    /// sweep, it tells what a line should look like.
    void ended(const QString& reason);

private:
    void slice();
    void publish();
    void remarkSkipped();
    void setState(State state);
    void restarted(const QString& reason);
    void finish();

    std::unique_ptr<LiveSource> m_source;
    std::size_t m_historyBytes;
    std::shared_ptr<Recording> m_recording = std::make_shared<Recording>();
    RecordingParser m_parser{m_recording};
    LiveWatch m_watch;
    FloodGate m_remarks;
    FloodGate m_said;
    QElapsedTimer m_clock;
    QElapsedTimer m_sincePublish;
    QElapsedTimer m_sinceStatus;
    QTimer m_slice;
    QTimer m_publish;
    QTimer m_settle;
    QTimer m_stall;
    std::chrono::milliseconds m_sliceTime{8};
    std::unique_ptr<char[]> m_buffer;
    State m_state = State::Waiting;
    qint64 m_toldSkipped = 0;
    bool m_isStopped = false;
    bool m_isLast = false; ///< The source has ended.
    QString m_reason;
};

} // namespace bandmonitor
