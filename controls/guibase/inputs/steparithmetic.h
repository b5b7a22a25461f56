// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <concepts>
#include <limits>
#include <optional>

/// Steps and rounding in the exact arithmetic of the type: nothing wraps, and no integer passes
/// through a double.
namespace StepArithmetic {

/// The magnitude of an integer of any type; also of the lowest ones, which have no positive twin.
template <std::integral T>
quint64 magnitude(T value)
{
    return value < 0 ? quint64(0) - static_cast<quint64>(value) : static_cast<quint64>(value);
}

/// value + steps * step, or nothing when T cannot hold it.
template <std::integral T>
std::optional<T> stepped(T value, qint64 steps, T step)
{
    const quint64 count = magnitude(steps);
    const quint64 size = magnitude(step);
    if (size != 0 && count > std::numeric_limits<quint64>::max() / size)
        return std::nullopt;
    const quint64 distance = count * size;
    const bool down = (steps < 0) != (step < 0);
    // Differences modulo 2^64 are exact, since the limits are less than 2^64 apart.
    const auto from = static_cast<quint64>(value);
    const quint64 room = down ? from - static_cast<quint64>(std::numeric_limits<T>::lowest())
                              : static_cast<quint64>(std::numeric_limits<T>::max()) - from;
    if (distance > room)
        return std::nullopt;
    return static_cast<T>(down ? from - distance : from + distance);
}

/// The multiple of `step` nearest to the value, halves away from zero; the last multiple that T
/// holds where that one is beyond. The value itself for steps below 1.
template <std::integral T>
T nearestMultiple(T value, T step)
{
    if (step < 1)
        return value;
    const quint64 size = magnitude(step);
    const quint64 rest = magnitude(value) % size;
    const T towardsZero = static_cast<T>(value - value % step);
    if (rest < size - rest)
        return towardsZero;
    return stepped<T>(towardsZero, value < 0 ? -1 : 1, step).value_or(towardsZero);
}

/// How many decimals the shortest text of a number has that reads as the same number.
inline int decimalsOf(double value)
{
    char text[32];
    const std::to_chars_result result =
        std::to_chars(text, text + sizeof(text), value, std::chars_format::scientific);
    int digits = 0;
    const char* c = text;
    for (; c != result.ptr && *c != 'e'; ++c)
        digits += *c >= '0' && *c <= '9' ? 1 : 0;
    int exponent = 0;
    if (c != result.ptr) {
        c += c[1] == '+' ? 2 : 1;
        std::from_chars(c, result.ptr, exponent);
    }
    return std::max(0, digits - 1 - exponent);
}

/// The number that has this many decimals and lies nearest to `value`, or the value itself where a
/// double does not have so many digits.
inline double withDecimals(double value, int decimals)
{
    constexpr int mostDecimals = 15;
    constexpr double mostDigits = 1e15;
    if (decimals > mostDecimals || !(std::abs(value) * std::pow(10.0, decimals) < mostDigits))
        return value;
    char text[64];
    const std::to_chars_result result =
        std::to_chars(text, text + sizeof(text), value, std::chars_format::fixed, decimals);
    double rounded = value;
    std::from_chars(text, result.ptr, rounded);
    return rounded;
}

/// value + steps * step as one would do it on paper: 0.1 + 0.2 is 0.3. Nothing when it is not
/// finite.
inline std::optional<double> stepped(double value, qint64 steps, double step)
{
    const double sum = value + static_cast<double>(steps) * step;
    if (!std::isfinite(sum))
        return std::nullopt;
    return withDecimals(sum, std::max(decimalsOf(value), decimalsOf(step)));
}

/// The multiple of `step` nearest to the value, halves away from zero. The value itself for steps
/// that are not positive and where the multiple is not finite.
inline double nearestMultiple(double value, double step)
{
    if (!(step > 0.0))
        return value;
    const double multiple = step * std::round(value / step);
    return std::isfinite(multiple) ? withDecimals(multiple, decimalsOf(step)) : value;
}

} // namespace StepArithmetic
