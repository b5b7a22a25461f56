// SPDX-License-Identifier: MIT
#include "recordingwriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

namespace bandmonitor {

namespace {

/// The shortest decimals that read back as `value`, with two decimals at least unless
/// `allowInteger` and there are none.
template <typename Number>
void appendNumber(QByteArray& text, Number value, bool allowInteger)
{
    std::array<char, 400> buffer; // the longest double without exponent has 328 characters
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed);
    const QByteArrayView digits(buffer.data(), end);
    text += digits;
    const qsizetype point = digits.indexOf('.');
    if (point < 0)
        text += allowInteger ? "" : ".00";
    else if (point == digits.size() - 2)
        text += '0';
}

void appendPadded(QByteArray& text, qint64 value, int width)
{
    text += QByteArray::number(value).rightJustified(width, '0');
}

void appendTime(QByteArray& text, quint64 timeUs)
{
    using namespace std::chrono;
    const sys_time<microseconds> time{microseconds(static_cast<qint64>(timeUs))};
    const auto day = floor<days>(time);
    const year_month_day date(day);
    const hh_mm_ss clock(time - day);
    appendPadded(text, static_cast<int>(date.year()), 4);
    text += '-';
    appendPadded(text, static_cast<unsigned>(date.month()), 2);
    text += '-';
    appendPadded(text, static_cast<unsigned>(date.day()), 2);
    text += ", ";
    appendPadded(text, clock.hours().count(), 2);
    text += ':';
    appendPadded(text, clock.minutes().count(), 2);
    text += ':';
    appendPadded(text, clock.seconds().count(), 2);
    if (clock.subseconds().count() != 0) {
        text += '.';
        appendPadded(text, clock.subseconds().count(), 6);
    }
}

} // namespace

void appendSweepText(QByteArray& text, const Sweep& sweep)
{
    for (const Segment& segment : sweep.segments) {
        appendTime(text, sweep.timeUs);
        text += ", ";
        appendNumber(text, segment.startHz, true);
        text += ", ";
        appendNumber(text, segment.endHz(), true);
        text += ", ";
        appendNumber(text, segment.stepHz, false);
        text += ", " + QByteArray::number(segment.samples);
        for (const float level : segment.levels) {
            text += ", ";
            if (std::isfinite(level))
                appendNumber(text, level, false);
            else
                text += "nan";
        }
        text += '\n';
    }
}

QByteArray receiverRemark(const QString& address)
{
    return address.isEmpty() ? QByteArray() : "# receiver " + address.toLatin1() + '\n';
}

QByteArray sweepText(const Sweep& sweep)
{
    QByteArray text;
    appendSweepText(text, sweep);
    return text;
}

std::vector<Segment> hopsBetween(const Sweep& sweep, double lowHz, double highHz)
{
    std::vector<Segment> result;
    for (const Segment& hop : sweep.segments) {
        const auto bins = static_cast<double>(hop.levels.size());
        const double first = std::clamp(std::floor((lowHz - hop.startHz) / hop.stepHz), 0.0, bins);
        const double end = std::clamp(std::ceil((highHz - hop.startHz) / hop.stepHz), first, bins);
        if (end == first)
            continue;
        Segment& part = result.emplace_back(hop);
        part.startHz += first * hop.stepHz;
        part.levels = hop.levels.subspan(static_cast<std::size_t>(first),
                                         static_cast<std::size_t>(end - first));
    }
    std::ranges::stable_sort(result, {}, &Segment::startHz); // hops may overlap
    return result;
}

} // namespace bandmonitor
