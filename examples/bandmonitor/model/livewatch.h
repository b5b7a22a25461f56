// SPDX-License-Identifier: MIT
#pragma once

#include "recording.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <optional>

namespace bandmonitor {

/// How many sweeps come in a second, over about the last three seconds, or longer for slow ones.
class SweepRate
{
public:
    static constexpr qint64 spanUs = 3'000'000;

    /// `count` more sweeps have come. The clock may have any beginning.
    void add(qsizetype count, qint64 nowUs);
    void clear() { m_arrivals.clear(); }
    /// Nothing before the second time that some came.
    std::optional<double> perSecond() const;

private:
    struct Arrival
    {
        qint64 timeUs = 0;
        qsizetype count = 0; ///< Sweeps up to then, from any number on.
    };
    std::deque<Arrival> m_arrivals;
};

/// Watches the sweeps of live input as they arrive: how many in a second, how late, and what an
/// operator should know about. Times of arrival are those of a clock in microseconds that never
/// runs backward.
class LiveWatch
{
public:
    static constexpr qint64 shortestStallUs = 3'000'000;

    /// Takes in the sweeps of the recording that have come since the last call. Returns what is
    /// remarkable about them, one line for the user each.
    QStringList take(const Recording& recording, qint64 nowUs);
    /// What comes next has nothing to do with what came.
    void restart();

    qsizetype sweepCount() const { return m_taken; }
    std::optional<double> rate() const { return m_rate.perSecond(); }
    /// By how much the newest sweep came later after its time stamp than the fastest one did; 0
    /// before the second one. The clock of the receiver may have any offset.
    qint64 delayUs() const { return m_delayUs; }
    /// Without a sweep for so long the input has stalled.
    qint64 stallAfterUs() const;

private:
    void watchTime(const Sweep& sweep, qint64 nowUs, QStringList& remarks);
    void watchSpan(const Sweep& sweep, QStringList& remarks);

    qsizetype m_taken = 0;
    SweepRate m_rate;
    std::optional<quint64> m_stampUs; ///< Of the sweep before.
    qint64 m_arrivedUs = 0;           ///< The sweep before.
    qint64 m_usualGapUs = 0;          ///< Between stamps; a running mean.
    std::optional<qint64> m_fastestUs;
    qint64 m_delayUs = 0;
    double m_lowHz = 0;
    double m_highHz = 0;
};

/// A time for the user: "0.5 s", "90 s", "2 h 5 min".
QString durationText(qint64 us);

} // namespace bandmonitor
