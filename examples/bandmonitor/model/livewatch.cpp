// SPDX-License-Identifier: MIT
#include "livewatch.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace bandmonitor {

namespace {

constexpr qint64 smallestJumpUs = 60'000'000;
constexpr qint64 usualGaps = 10;
constexpr qint64 stallGaps = 3;
constexpr int meanOf = 8;
constexpr std::size_t fewestArrivals = 5; // of slow sweeps
constexpr std::size_t mostArrivals = 256;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(bandmonitor::LiveWatch)
};

QString megahertz(double hertz)
{
    return QLocale().toString(hertz / 1e6, 'f', 3);
}

} // namespace

void SweepRate::add(qsizetype count, qint64 nowUs)
{
    const qsizetype before = m_arrivals.empty() ? 0 : m_arrivals.back().count;
    m_arrivals.push_back({nowUs, before + count});
    while (m_arrivals.size() > fewestArrivals &&
           (m_arrivals.size() > mostArrivals || m_arrivals[1].timeUs < nowUs - spanUs))
        m_arrivals.pop_front();
}

std::optional<double> SweepRate::perSecond() const
{
    if (m_arrivals.size() < 2 || m_arrivals.back().timeUs <= m_arrivals.front().timeUs)
        return std::nullopt;
    const Arrival& first = m_arrivals.front();
    const Arrival& last = m_arrivals.back();
    return static_cast<double>(last.count - first.count) * 1e6 /
           static_cast<double>(last.timeUs - first.timeUs);
}

QStringList LiveWatch::take(const Recording& recording, qint64 nowUs)
{
    QStringList remarks;
    if (recording.count() == m_taken)
        return remarks;
    for (qsizetype index = std::max(m_taken, recording.first()); index < recording.count();
         ++index) {
        const Sweep sweep = recording.sweep(index);
        watchTime(sweep, nowUs, remarks);
        watchSpan(sweep, remarks);
    }
    m_rate.add(recording.count() - m_taken, nowUs);
    m_taken = recording.count();
    return remarks;
}

void LiveWatch::restart()
{
    m_rate.clear();
    m_stampUs.reset();
    m_fastestUs.reset();
    m_usualGapUs = 0;
    m_delayUs = 0;
}

void LiveWatch::watchTime(const Sweep& sweep, qint64 nowUs, QStringList& remarks)
{
    const auto stampUs = static_cast<qint64>(sweep.timeUs);
    if (m_stampUs) {
        const qint64 gapUs = stampUs - static_cast<qint64>(*m_stampUs);
        const qint64 aheadUs = gapUs - (nowUs - m_arrivedUs);
        if (gapUs < 0 || aheadUs > std::max(smallestJumpUs, usualGaps * m_usualGapUs)) {
            remarks << (gapUs < 0 ? Texts::tr("The time stamps jump back by %1.")
                                  : Texts::tr("The time stamps jump ahead by %1."))
                           .arg(durationText(std::abs(gapUs)));
            m_fastestUs.reset();
        } else {
            m_usualGapUs += (gapUs - m_usualGapUs) / (m_usualGapUs == 0 ? 1 : meanOf);
        }
    }
    m_stampUs = sweep.timeUs;
    m_arrivedUs = nowUs;
    const qint64 takenUs = nowUs - stampUs;
    m_fastestUs = std::min(m_fastestUs.value_or(takenUs), takenUs);
    m_delayUs = takenUs - *m_fastestUs;
}

void LiveWatch::watchSpan(const Sweep& sweep, QStringList& remarks)
{
    if (sweep.lowHz == m_lowHz && sweep.highHz == m_highHz)
        return;
    if (m_highHz > m_lowHz)
        remarks << Texts::tr("The span is %1 to %2 MHz now.")
                       .arg(megahertz(sweep.lowHz), megahertz(sweep.highHz));
    m_lowHz = sweep.lowHz;
    m_highHz = sweep.highHz;
}

qint64 LiveWatch::stallAfterUs() const
{
    const std::optional<double> sweeps = rate();
    const double usual = sweeps ? stallGaps * 1e6 / *sweeps : 0;
    return std::max(shortestStallUs, std::llround(std::min(usual, 1e12)));
}

QString durationText(qint64 us)
{
    constexpr qint64 second = 1'000'000;
    constexpr qint64 minute = 60 * second;
    if (us < 10 * second)
        return Texts::tr("%1 s").arg(QLocale().toString(static_cast<double>(us) / second, 'f', 1));
    if (us < 3 * minute)
        return Texts::tr("%1 s").arg(QLocale().toString(us / second));
    if (us < 60 * minute)
        return Texts::tr("%1 min").arg(us / minute);
    return Texts::tr("%1 h %2 min")
        .arg(QLocale().toString(us / (60 * minute)))
        .arg(us / minute % 60);
}

} // namespace bandmonitor
