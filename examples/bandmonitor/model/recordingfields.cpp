// SPDX-License-Identifier: MIT
#include "recordingfields.h"

#include <chrono>
#include <cmath>

namespace bandmonitor {

std::optional<quint64> RecordingFields::readTime()
{
    using namespace std::chrono;
    const std::optional<int> century = readTwoDigits();
    const std::optional<int> yearOfCentury = readTwoDigits();
    const bool firstDash = skip('-');
    const std::optional<int> month = readTwoDigits();
    const bool secondDash = skip('-');
    const std::optional<int> day = readTwoDigits();
    if (!century || !yearOfCentury || !firstDash || !month || !secondDash || !day || !endField())
        return std::nullopt;
    const year_month_day date(year(*century * 100 + *yearOfCentury),
                              std::chrono::month(static_cast<unsigned>(*month)),
                              std::chrono::day(static_cast<unsigned>(*day)));
    if (!date.ok() || date.year() < year(1970))
        return std::nullopt;

    const std::optional<int> hour = readTwoDigits();
    const bool firstColon = skip(':');
    const std::optional<int> minute = readTwoDigits();
    const bool secondColon = skip(':');
    const std::optional<int> second = readTwoDigits();
    if (!hour || !firstColon || !minute || !secondColon || !second)
        return std::nullopt;
    if (*hour > 23 || *minute > 59 || *second > 60) // 60: a leap second
        return std::nullopt;
    qint64 fractionUs = 0;
    if (skip('.')) {
        qint64 unitUs = 100'000;
        for (; m_at != m_end && *m_at >= '0' && *m_at <= '9'; ++m_at) {
            fractionUs += unitUs * (*m_at - '0');
            unitUs /= 10;
        }
    }
    if (!endField())
        return std::nullopt;
    const microseconds time = sys_days(date).time_since_epoch() + hours(*hour) + minutes(*minute) +
                              seconds(*second) + microseconds(fractionUs);
    return static_cast<quint64>(time.count());
}

std::optional<double> RecordingFields::readNumber()
{
    double value = 0;
    skip('+');
    const auto [end, error] = std::from_chars(m_at, m_end, value);
    if (error != std::errc() || !std::isfinite(value))
        return std::nullopt;
    m_at = end;
    return endField() ? std::optional(value) : std::nullopt;
}

bool RecordingFields::readUnusualLevel(float& level)
{
    double value = 0;
    const bool hadPlus = skip('+');
    if (hadPlus && m_at != m_end && *m_at == '-')
        return false;
    const auto [end, error] = std::from_chars(m_at, m_end, value);
    if (error == std::errc::invalid_argument)
        return false;
    m_at = end;
    const bool usable = error == std::errc() && std::abs(value) <= largestLevel;
    level = usable ? static_cast<float>(value) : noLevel;
    return endField();
}

bool RecordingFields::skip(char character)
{
    if (m_at == m_end || *m_at != character)
        return false;
    ++m_at;
    return true;
}

std::optional<int> RecordingFields::readTwoDigits()
{
    if (m_end - m_at < 2)
        return std::nullopt;
    const int tens = m_at[0] - '0';
    const int ones = m_at[1] - '0';
    if (tens < 0 || tens > 9 || ones < 0 || ones > 9)
        return std::nullopt;
    m_at += 2;
    return tens * 10 + ones;
}

} // namespace bandmonitor
