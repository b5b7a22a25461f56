// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/geoposition.h>

#include <QDateTime>
#include <QLocale>
#include <QString>

#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

/// Conversions between what values and widgets hold.
namespace ValueWidgetBinding::Conversion {

/// The nearest number of the other type: rounded, clamped; NaN becomes 0.
template <typename To, typename From>
To nearest(const From& from)
{
    if constexpr (std::is_same_v<To, From> || !std::is_arithmetic_v<From>) {
        return from;
    } else if constexpr (std::is_floating_point_v<To>) {
        return static_cast<To>(from);
    } else if constexpr (std::is_integral_v<From>) {
        if (std::in_range<To>(from))
            return static_cast<To>(from);
        return from < 0 ? std::numeric_limits<To>::min() : std::numeric_limits<To>::max();
    } else {
        // 2^digits is exact as a real number, which the highest integer may not be.
        if (from >= std::ldexp(1.0, std::numeric_limits<To>::digits))
            return std::numeric_limits<To>::max();
        if (from <= static_cast<From>(std::numeric_limits<To>::min()))
            return std::numeric_limits<To>::min();
        return std::isnan(from) ? To(0) : static_cast<To>(std::round(from));
    }
}

/// Whether the type can hold the value but for rounding.
template <typename To, typename From>
bool fits(const From& from)
{
    if constexpr (std::is_arithmetic_v<From> && std::is_integral_v<To>)
        return std::abs(static_cast<double>(nearest<To>(from)) - static_cast<double>(from)) <= 0.5;
    else
        return true;
}

/// For people.
template <typename T>
QString text(const T& value)
{
    if constexpr (std::is_same_v<T, QString>)
        return value;
    else if constexpr (std::is_same_v<T, QDateTime>)
        return QLocale().toString(value, QLocale::ShortFormat);
    else if constexpr (std::is_same_v<T, GeoPosition>)
        return value.text();
    else if constexpr (std::is_same_v<T, double>)
        return QLocale().toString(value, 'g', QLocale::FloatingPointShortest);
    else
        return QLocale().toString(value);
}

} // namespace ValueWidgetBinding::Conversion
