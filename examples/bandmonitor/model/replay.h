// SPDX-License-Identifier: MIT
#pragma once

#include "recording.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

namespace bandmonitor {

/// Walks through a recording, by hand or as fast as its time stamps say. The recording may grow
/// meanwhile, and lose its oldest sweeps.
class Replay : public QObject
{
    Q_OBJECT

public:
    static constexpr double minimumSpeed = 0.1;
    static constexpr double maximumSpeed = 10'000; ///< Forty hours in less than a minute.
    /// A clock in microseconds that never runs backward.
    using Clock = std::function<qint64()>;

    explicit Replay(QObject* parent = nullptr);
    ~Replay() override;

    /// Pauses, and goes to the first sweep of `recording`, which may be null or still empty.
    void setRecording(std::shared_ptr<const Recording> recording);
    std::shared_ptr<const Recording> recording() const { return m_recording; }

    /// Whether sweeps will follow the last one, and what playing does when it has come there.
    enum class Growth {
        None,    ///< The recording is complete: playing ends.
        Loading, ///< It waits, and goes on as the time stamps say.
        Live,    ///< It shows each new sweep at once.
    };
    /// Growth::None after setRecording().
    void setGrowth(Growth growth);
    Growth growth() const { return m_growth; }
    /// The recording has more sweeps. Those before `first` are about to go: the current sweep is
    /// none of them any more.
    void recordingGrown(qsizetype first = 0);
    /// Whether it plays, and shows each new sweep of a live recording at once.
    bool isFollowing() const { return m_waits && m_growth == Growth::Live; }

    /// Index of the current sweep; -1 without any.
    qsizetype position() const { return m_position; }
    /// The current sweep; empty without any.
    Sweep sweep() const;
    qsizetype count() const;
    bool isPlaying() const { return m_playing; }
    double speed() const { return m_speed; }

    /// Sweeps whose stamp is not after the one before follow after `gap` of recorded time;
    /// 100 ms by default, 1 ms at least.
    void setEqualStampGap(std::chrono::microseconds gap);
    /// The longest gap that is kept, in recorded time: a longer pause of the receiver is cut to
    /// it; 10 s by default.
    void setMaximumGap(std::chrono::microseconds gap);
    /// How often the clock is looked at while playing; 16 ms by default.
    void setTickInterval(std::chrono::milliseconds interval);
    /// Takes time from `clock`; an empty one means the system's steady clock again.
    void setClock(Clock clock);

public Q_SLOTS:
    /// Plays on from the current sweep; from the first one when at the last of a complete
    /// recording. Without any sweep nothing happens.
    void play();
    void pause();
    /// play() or pause().
    void toggle();
    /// Pauses and goes to the next or previous sweep; at the end, or the beginning, it stays.
    void stepForward();
    void stepBackward();
    /// Goes to `index`, cut to what there is; playing goes on.
    void jump(qsizetype index);
    /// Goes to the last sweep; in a live recording playing shows each new one from now on.
    void toLast();
    /// Recorded time per real time, cut to 0.1 to 10,000; 1 by default. Ignores NaN.
    void setSpeed(double factor);

Q_SIGNALS:
    /// setRecording() has replaced the recording, perhaps by none.
    void recordingChanged();
    /// The current sweep is another one. Several sweeps can be passed at once, when playing fast or
    /// when they are about to go: those from `previous + 1` to `position`. After jump() and
    /// setRecording() `previous` is -1: none was passed.
    void positionChanged(qsizetype position, qsizetype previous);
    /// See setGrowth().
    void growthChanged();
    /// Playing has begun or stopped.
    void playingChanged(bool playing);
    /// Recorded time per real time is another one now; see setSpeed().
    void speedChanged(double factor);
    /// Playing came to the last sweep; playing has stopped.
    void endReached();

private:
    void setPlaying(bool playing);
    void moveTo(qsizetype position, qsizetype previous);
    void tick();
    /// Runs the timer while there is something to play.
    void updateTimer();
    qsizetype first() const { return m_recording ? m_recording->first() : 0; }
    qint64 gapAfter(qsizetype position) const;

    std::shared_ptr<const Recording> m_recording;
    Clock m_clock;
    QTimer m_timer;
    qsizetype m_position = -1;
    bool m_playing = false;
    bool m_waits = false; ///< It plays, and waits for more sweeps.
    Growth m_growth = Growth::None;
    double m_speed = 1;
    qint64 m_equalStampGapUs = 100'000;
    qint64 m_maximumGapUs = 10'000'000;
    qint64 m_lastTickUs = 0;
    double m_playedUs = 0; ///< recorded time since the current sweep
};

} // namespace bandmonitor
