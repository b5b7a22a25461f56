// SPDX-License-Identifier: MIT
#include "recordingwriter.h"

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

} // namespace bandmonitor
