// SPDX-License-Identifier: MIT
#include "numberhelpers.h"

#include "numbercharacters.h"
#include "numberscanner_p.h"

#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <concepts>
#include <limits>
#include <optional>

namespace {

using NumberReading::GroupCheck;
using NumberReading::GroupSizes;
using NumberReading::Scanner;

/// Room for every number that people write; only longer texts are put on the heap.
using AsciiNumber = QVarLengthArray<char, 128>;

struct SignedMagnitude
{
    bool negative = false;
    quint64 magnitude = 0;
};

/// The largest magnitudes that a type holds on both sides of zero.
struct IntegerLimits
{
    quint64 positive;
    quint64 negative;
};

std::optional<SignedMagnitude> readInteger(Scanner& scanner, int base, const IntegerLimits& limits)
{
    if (base < 2 || base > 36)
        return std::nullopt;
    SignedMagnitude number;
    number.negative = scanner.takeSign() == '-';
    const quint64 limit = number.negative ? limits.negative : limits.positive;
    const auto factor = static_cast<quint64>(base);
    GroupCheck groups;
    bool anyDigit = false;
    while (!scanner.atEnd()) {
        const int value = scanner.takeDigit(base);
        if (value < 0) {
            // Locales group decimal digits only.
            if (base != 10 || !scanner.takeGroupSeparator() ||
                !groups.separator(scanner.groupSizes()))
                return std::nullopt;
            continue;
        }
        const auto digit = static_cast<quint64>(value);
        if (digit > limit || number.magnitude > (limit - digit) / factor)
            return std::nullopt;
        number.magnitude = number.magnitude * factor + digit;
        groups.digit();
        anyDigit = true;
    }
    if (!anyDigit || (groups.isSeparated() && !groups.end(scanner.groupSizes())))
        return std::nullopt;
    return number;
}

template <std::integral T>
std::optional<T> readNumber(QStringView text, const QLocale* locale, int base)
{
    constexpr T highest = std::numeric_limits<T>::max();
    constexpr T lowest = std::numeric_limits<T>::min();
    constexpr IntegerLimits limits{static_cast<quint64>(highest),
                                   quint64(0) - static_cast<quint64>(lowest)};
    Scanner scanner(text, locale);
    const std::optional<SignedMagnitude> number = readInteger(scanner, base, limits);
    if (!number)
        return std::nullopt;
    // Unsigned arithmetic wraps, so that the negation is defined for the lowest value too.
    return static_cast<T>(number->negative ? quint64(0) - number->magnitude : number->magnitude);
}

/// The value of a number in C notation. Nothing for a text that is no number as a whole, and for a
/// value that a double can only express as infinity or, wrongly, as zero.
std::optional<double> fromAscii(const char* begin, const char* end)
{
    double value = 0.0;
    const std::from_chars_result result = std::from_chars(begin, end, value);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

void takeDigits(Scanner& scanner, AsciiNumber& number)
{
    for (int digit = scanner.takeDigit(10); digit >= 0; digit = scanner.takeDigit(10))
        number.append(static_cast<char>('0' + digit));
}

/// Reads digits and group separators up to the decimal point; false for misplaced separators.
bool takeGroupedDigits(Scanner& scanner, AsciiNumber& number)
{
    GroupCheck groups;
    while (!scanner.atEnd()) {
        const int digit = scanner.takeDigit(10);
        if (digit >= 0) {
            number.append(static_cast<char>('0' + digit));
            groups.digit();
        } else if (!scanner.takeGroupSeparator()) {
            break;
        } else if (!groups.separator(scanner.groupSizes())) {
            return false;
        }
    }
    return !groups.isSeparated() || groups.end(scanner.groupSizes());
}

template <std::same_as<double> T>
std::optional<T> readNumber(QStringView text, const QLocale* locale, int base)
{
    if (base != 10)
        return std::nullopt;
    Scanner scanner(text, locale);
    AsciiNumber number;
    if (scanner.takeSign() == '-')
        number.append('-');
    if (!takeGroupedDigits(scanner, number))
        return std::nullopt;
    if (scanner.takeDecimalPoint()) {
        number.append('.');
        takeDigits(scanner, number);
    }
    if (!scanner.atEnd() && scanner.takeExponent()) {
        number.append('e');
        if (scanner.takeSign() == '-')
            number.append('-');
        takeDigits(scanner, number);
    }
    if (!scanner.atEnd())
        return std::nullopt;
    return fromAscii(number.cbegin(), number.cend());
}

template <typename T>
T result(const std::optional<T>& number, bool* ok)
{
    if (ok != nullptr)
        *ok = number.has_value();
    return number.value_or(T(0));
}

} // namespace

template <typename T>
T NumberHelpers::parse(QStringView text, const QLocale& locale, bool* ok, int base)
{
    return result(readNumber<T>(text, &locale, base), ok);
}

template <typename T>
T NumberHelpers::parse(QStringView text, bool* ok, int base)
{
    return result(readNumber<T>(text, nullptr, base), ok);
}

#define INSTANTIATE_PARSE(T)                                                                       \
    template JTBASE_EXPORT T NumberHelpers::parse<T>(QStringView, const QLocale&, bool*, int);     \
    template JTBASE_EXPORT T NumberHelpers::parse<T>(QStringView, bool*, int);

INSTANTIATE_PARSE(signed char)
INSTANTIATE_PARSE(unsigned char)
INSTANTIATE_PARSE(short)
INSTANTIATE_PARSE(unsigned short)
INSTANTIATE_PARSE(int)
INSTANTIATE_PARSE(unsigned int)
INSTANTIATE_PARSE(qint64)
INSTANTIATE_PARSE(quint64)
INSTANTIATE_PARSE(double)

#undef INSTANTIATE_PARSE

namespace Trov {

namespace {

bool isSeparator(char c)
{
    return c == '.' || c == ',';
}

/// Takes the group separators out of a number with several separators, and writes the decimal one
/// as a point. Returns the new end, or null when a separator is misplaced.
char* withoutGroups(char* begin, char* end)
{
    constexpr GroupSizes threes{3, 3, 3};
    char* const exponent = std::find(begin, end, 'e');
    char* const first = std::find_if(begin, exponent, isSeparator);
    if (first == exponent)
        return nullptr;
    const char group = *first;
    char* decimal = exponent;
    while (!isSeparator(*(decimal - 1)))
        --decimal;
    --decimal;
    char* const integerEnd = *decimal == group ? exponent : decimal;
    if (integerEnd == decimal)
        *decimal = '.';

    char* out = begin;
    GroupCheck groups;
    for (const char* in = begin; in != integerEnd; ++in) {
        if (*in == group) {
            if (!groups.separator(threes))
                return nullptr;
            continue;
        }
        if (*in != '-')
            groups.digit();
        *out++ = *in;
    }
    return groups.end(threes) ? std::copy(integerEnd, end, out) : nullptr;
}

std::optional<double> readDouble(QStringView text)
{
    text = text.trimmed();
    if (!text.isEmpty() && NumberCharacters::meaningOf(text.front().unicode()) == '+') {
        text = text.sliced(1);
        if (!text.isEmpty() && NumberCharacters::meaningOf(text.front().unicode()) == '-')
            return std::nullopt;
    }
    AsciiNumber number(text.size());
    char* end = number.data();
    char* separator = nullptr;
    int separators = 0;
    for (const QChar c : text) {
        const char ascii = NumberCharacters::meaningOf(c.unicode());
        if (ascii == '\0' || ascii == ' ' || ascii == '\'')
            return std::nullopt;
        if (isSeparator(ascii)) {
            separator = end;
            ++separators;
        }
        *end++ = ascii;
    }
    if (separators == 1)
        *separator = '.';
    else if (separators > 1)
        end = withoutGroups(number.data(), end);
    return end != nullptr ? fromAscii(number.data(), end) : std::nullopt;
}

} // namespace

double toDoubleEx(QStringView text, bool* ok)
{
    return result(readDouble(text), ok);
}

} // namespace Trov
