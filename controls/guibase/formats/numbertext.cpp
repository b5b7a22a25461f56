// SPDX-License-Identifier: MIT
#include "numbertext_p.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

/// What QLocale makes of every negative precision but that for the shortest text.
constexpr int defaultPrecision = 6;
constexpr int highestFastPrecision = 20;
/// No number has more decimals. QLocale makes room for as many as it is asked for, or ends the
/// program.
constexpr int highestPrecision = 1074;
/// 2^53: below it there is room for all digits in the buffer, and halves exist.
constexpr double highestFastValue = 9007199254740992.0;

QString fromLatin1(const char* begin, const char* end, QChar decimalPoint, bool plus)
{
    QString text(end - begin + (plus ? 1 : 0), Qt::Uninitialized);
    QChar* out = text.data();
    if (plus)
        *out++ = u'+';
    for (; begin != end; ++begin)
        *out++ = *begin == '.' ? decimalPoint : QChar(QLatin1Char(*begin));
    return text;
}

/// Whether the value lies exactly in the middle of two neighbours with this many decimals, that is
/// has the form odd / 2^(decimals + 1). QLocale and the standard library round it differently.
bool isTie(double value, int decimals)
{
    const double scaled = std::ldexp(value, decimals + 1);
    return std::trunc(scaled) == scaled && std::fmod(scaled, 2.0) != 0.0;
}

} // namespace

QString NumberText::ofReal(double value, const QLocale& locale, const LocaleNotation& notation,
                           char format, int precision, bool showPlus)
{
    const bool plus = showPlus && value > 0.0;
    const int decimals = precision == -1 ? defaultPrecision : precision;
    // NaN and both zeros go to the locale too: it writes no negative zero.
    const bool isFast = notation.isPlain && format == 'f' && decimals >= 0 &&
                        decimals <= highestFastPrecision && value != 0.0 &&
                        std::abs(value) < highestFastValue;
    if (!isFast || isTie(value, decimals)) {
        QString text = locale.toString(value, format, std::min(precision, highestPrecision));
        return plus ? text.prepend(u'+') : text;
    }
    std::array<char, 48> buffer; // Sign, 16 digits, point, decimals.
    const std::to_chars_result result = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                                      value, std::chars_format::fixed, decimals);
    return fromLatin1(buffer.data(), result.ptr, notation.decimalPoint, plus);
}

template <typename T>
QString NumberText::ofInteger(T value, const QLocale& locale, const LocaleNotation& notation,
                              int base, bool showPlus)
{
    const bool plus = showPlus && value >= 1;
    if (base == 10 && !notation.isPlain) {
        QString text = locale.toString(value);
        return plus ? text.prepend(u'+') : text;
    }
    std::array<char, 65> buffer; // A sign and 64 bits.
    const std::to_chars_result result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, base);
    return fromLatin1(buffer.data(), result.ptr, notation.decimalPoint, plus);
}

template QString NumberText::ofInteger(qint64, const QLocale&, const LocaleNotation&, int, bool);
template QString NumberText::ofInteger(quint64, const QLocale&, const LocaleNotation&, int, bool);
