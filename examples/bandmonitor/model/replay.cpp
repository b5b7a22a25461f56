// SPDX-License-Identifier: MIT
#include "replay.h"

#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace bandmonitor {

namespace {

/// After a longer stall (a suspended machine, a blocked window) playing goes on from where it
/// was, instead of rushing through all that was missed.
constexpr qint64 longestTickUs = 1'000'000;

qint64 steadyMicroseconds()
{
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

Replay::Replay(QObject* parent)
    : QObject(parent)
    , m_clock(&steadyMicroseconds)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    setTickInterval(std::chrono::milliseconds(16));
    connect(&m_timer, &QTimer::timeout, this, &Replay::tick);
}

Replay::~Replay() = default;

void Replay::setRecording(std::shared_ptr<const Recording> recording)
{
    m_recording = std::move(recording);
    m_playedUs = 0;
    m_position = count() > 0 ? first() : -1;
    m_growth = Growth::None;
    setPlaying(false);
    Q_EMIT recordingChanged();
    Q_EMIT positionChanged(m_position, -1);
}

void Replay::setGrowth(Growth growth)
{
    if (growth == m_growth)
        return;
    m_growth = growth;
    const QPointer<Replay> guard(this);
    Q_EMIT growthChanged();
    if (!guard)
        return;
    if (growth == Growth::None && m_waits) {
        setPlaying(false);
        if (guard)
            Q_EMIT endReached();
    } else {
        updateTimer();
    }
}

void Replay::recordingGrown(qsizetype first)
{
    if (isFollowing()) {
        if (m_position < count() - 1)
            moveTo(count() - 1, m_position);
    } else if (m_position < first) {
        moveTo(first, m_position);
    }
    updateTimer();
}

Sweep Replay::sweep() const
{
    return m_recording ? m_recording->sweep(m_position) : Sweep();
}

qsizetype Replay::count() const
{
    return m_recording ? m_recording->count() : 0;
}

void Replay::setEqualStampGap(std::chrono::microseconds gap)
{
    m_equalStampGapUs = std::max<qint64>(gap.count(), 1000);
}

void Replay::setMaximumGap(std::chrono::microseconds gap)
{
    m_maximumGapUs = std::max<qint64>(gap.count(), 1000);
}

void Replay::setTickInterval(std::chrono::milliseconds interval)
{
    m_timer.setInterval(interval);
}

void Replay::setClock(Clock clock)
{
    m_clock = clock ? std::move(clock) : Clock(&steadyMicroseconds);
    m_lastTickUs = m_clock();
}

void Replay::play()
{
    if (m_playing || count() == 0)
        return;
    const bool fromStart =
        m_position < 0 || (m_position == count() - 1 && m_growth == Growth::None);
    m_playedUs = 0;
    setPlaying(true);
    if (m_playing && fromStart && m_position != first())
        moveTo(first(), -1);
}

void Replay::pause()
{
    setPlaying(false);
}

void Replay::toggle()
{
    if (m_playing)
        pause();
    else
        play();
}

void Replay::stepForward()
{
    setPlaying(false);
    if (m_position < count() - 1)
        moveTo(m_position + 1, m_position);
}

void Replay::stepBackward()
{
    setPlaying(false);
    if (m_position > first())
        moveTo(m_position - 1, m_position);
}

void Replay::jump(qsizetype index)
{
    if (count() == 0)
        return;
    const qsizetype target = std::clamp(index, first(), count() - 1);
    m_lastTickUs = m_clock();
    if (target != m_position)
        moveTo(target, -1);
}

void Replay::toLast()
{
    jump(count() - 1);
    if (m_growth == Growth::Live)
        play();
}

void Replay::setSpeed(double factor)
{
    if (std::isnan(factor))
        return;
    const double speed = std::clamp(factor, minimumSpeed, maximumSpeed);
    if (speed == m_speed)
        return;
    if (m_playing)
        tick(); // what has passed so far was played at the old speed
    m_speed = speed;
    Q_EMIT speedChanged(m_speed);
}

void Replay::setPlaying(bool playing)
{
    if (playing == m_playing)
        return;
    m_playing = playing;
    updateTimer();
    Q_EMIT playingChanged(playing);
}

void Replay::moveTo(qsizetype position, qsizetype previous)
{
    m_position = position;
    m_playedUs = 0;
    updateTimer();
    Q_EMIT positionChanged(position, previous);
}

void Replay::updateTimer()
{
    m_waits = m_playing && m_growth != Growth::None && m_position == count() - 1;
    if (!m_playing || m_waits) {
        m_timer.stop();
    } else if (!m_timer.isActive()) {
        m_lastTickUs = m_clock();
        m_timer.start();
    }
}

void Replay::tick()
{
    const qint64 now = m_clock();
    const qint64 passed = std::clamp<qint64>(now - m_lastTickUs, 0, longestTickUs);
    m_lastTickUs = now;
    double playedUs = m_playedUs + static_cast<double>(passed) * m_speed;
    const qsizetype last = count() - 1;
    const qsizetype previous = m_position;
    qsizetype position = previous;
    while (position < last) {
        const double gap = static_cast<double>(gapAfter(position));
        if (playedUs < gap)
            break;
        playedUs -= gap;
        ++position;
    }
    m_playedUs = playedUs;

    const QPointer<Replay> guard(this);
    if (position != previous) {
        m_position = position;
        Q_EMIT positionChanged(position, previous);
    }
    if (!guard || !m_playing || m_position < count() - 1)
        return;
    if (m_growth != Growth::None) {
        updateTimer();
        return;
    }
    setPlaying(false);
    if (guard)
        Q_EMIT endReached();
}

/// Recorded time between a sweep and the next one.
qint64 Replay::gapAfter(qsizetype position) const
{
    const quint64 from = m_recording->sweep(position).timeUs;
    const quint64 to = m_recording->sweep(position + 1).timeUs;
    if (to <= from)
        return std::min(m_equalStampGapUs, m_maximumGapUs);
    const auto gap = std::min<quint64>(to - from, static_cast<quint64>(m_maximumGapUs));
    return static_cast<qint64>(gap);
}

} // namespace bandmonitor
