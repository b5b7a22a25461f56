// SPDX-License-Identifier: MIT
#pragma once

#include "recording.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

namespace bandmonitor {

/// Walks through the fields of one line of a recording, which are separated by commas. Blanks
/// around a field do not count.
class RecordingFields
{
public:
    explicit RecordingFields(std::string_view line)
        : m_at(line.data())
        , m_end(line.data() + line.size())
    {
        skipBlanks();
    }

    /// True when nothing, or nothing but a comma before, is left.
    bool atEnd() const { return m_at == m_end; }

    /// Date and time of day, two fields, as microseconds since 1970-01-01T00:00 UTC.
    std::optional<quint64> readTime();
    /// A finite number.
    std::optional<double> readNumber();
    /// A level in dB, or `noLevel`; false when the field is no number. What has more digits than
    /// a double holds, or an exponent, takes the slow way round.
    bool readLevel(float& level)
    {
        const char* const begin = m_at;
        const bool negative = m_at != m_end && *m_at == '-';
        m_at += negative ? 1 : 0;
        std::uint64_t mantissa = 0;
        const char* const digits = m_at;
        readDigits(mantissa);
        auto digitCount = m_at - digits;
        std::size_t decimals = 0;
        if (m_at != m_end && *m_at == '.') {
            const char* const fraction = ++m_at;
            readDigits(mantissa);
            decimals = static_cast<std::size_t>(m_at - fraction);
            digitCount += m_at - fraction;
        }
        if (digitCount < 1 || digitCount > exactDigits || !endField()) {
            m_at = begin;
            return readUnusualLevel(level);
        }
        const double value = static_cast<double>(mantissa) / powersOfTen[decimals];
        level = value > largestLevel ? noLevel : static_cast<float>(negative ? -value : value);
        return true;
    }

private:
    static constexpr double largestLevel = 1000;
    static constexpr int exactDigits = 15;
    static constexpr std::array<double, exactDigits + 1> powersOfTen = {
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

    void readDigits(std::uint64_t& value)
    {
        for (; m_at != m_end; ++m_at) {
            const auto digit = static_cast<unsigned char>(*m_at - '0');
            if (digit > 9)
                return;
            value = value * 10 + digit;
        }
    }
    void skipBlanks()
    {
        while (m_at != m_end && (*m_at == ' ' || *m_at == '\t'))
            ++m_at;
    }
    /// Goes on to the next field; false when the field has not ended here.
    bool endField()
    {
        skipBlanks();
        if (m_at == m_end)
            return true;
        if (*m_at != ',')
            return false;
        ++m_at;
        skipBlanks();
        return true;
    }
    bool readUnusualLevel(float& level);
    bool skip(char character);
    std::optional<int> readTwoDigits();

    const char* m_at;
    const char* m_end;
};

} // namespace bandmonitor
