// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QVariant>

#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

/// Conversion of the values of typed inputs to and from variants, without loss or not at all.
namespace TypedInputVariant {

template <typename T>
QVariant toVariant(const T& value)
{
    if constexpr (!std::is_integral_v<T>)
        return QVariant::fromValue(value);
    else if constexpr (std::is_signed_v<T>)
        return QVariant(static_cast<qlonglong>(value));
    else
        return QVariant(static_cast<qulonglong>(value));
}

template <typename T, typename Wide>
std::optional<T> narrowed(Wide value)
{
    return std::in_range<T>(value) ? std::optional<T>(static_cast<T>(value)) : std::nullopt;
}

template <typename T>
std::optional<T> integerFromReal(double value)
{
    // Both bounds are powers of two, and as such exact in a double.
    const double beyond = std::ldexp(1.0, std::numeric_limits<T>::digits);
    const double lowest = std::is_signed_v<T> ? -beyond : 0.0;
    // The highest number as a double, which is all that some assistive technologies can tell.
    if (std::numeric_limits<T>::digits > std::numeric_limits<double>::digits && value == beyond)
        return std::numeric_limits<T>::max();
    if (!(value >= lowest && value < beyond) || std::trunc(value) != value)
        return std::nullopt;
    return static_cast<T>(value);
}

template <typename T>
std::optional<T> fromVariant(const QVariant& variant)
{
    bool ok = false;
    if constexpr (std::is_same_v<T, QDateTime>) {
        const QDateTime value = variant.toDateTime();
        return value.isValid() ? std::optional<T>(value) : std::nullopt;
    } else if constexpr (std::is_same_v<T, double>) {
        const double value = variant.toDouble(&ok);
        return ok && std::isfinite(value) ? std::optional<T>(value) : std::nullopt;
    } else {
        switch (variant.typeId()) {
        case QMetaType::Double:
        case QMetaType::Float:
            return integerFromReal<T>(variant.toDouble());
        case QMetaType::ULongLong:
        case QMetaType::ULong:
            return narrowed<T>(variant.toULongLong());
        default:
            break;
        }
        if (const qlonglong value = variant.toLongLong(&ok); ok)
            return narrowed<T>(value);
        const qulonglong value = variant.toULongLong(&ok);
        return ok ? narrowed<T>(value) : std::nullopt;
    }
}

} // namespace TypedInputVariant
