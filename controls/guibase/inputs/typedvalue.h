// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

/// What the typed inputs take for a value of their type.
namespace TypedValue {

/// False for NaN and invalid date-times.
template <typename T>
bool isValue(const T& value)
{
    if constexpr (std::is_same_v<T, QDateTime>)
        return value.isValid();
    else if constexpr (std::is_same_v<T, double>)
        return !std::isnan(value);
    else
        return true;
}

/// Infinite bounds would let infinity in.
template <typename T>
T finiteBound(T bound)
{
    if constexpr (std::is_same_v<T, double>)
        return std::clamp(bound, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max());
    else
        return bound;
}

struct RangeChange
{
    bool ofMinimum = false;
    bool ofMaximum = false;
    explicit operator bool() const { return ofMinimum || ofMaximum; }
};

/// Takes the bounds in any order; changes nothing when one is no value.
template <typename T>
RangeChange changeRange(T& minimum, T& maximum, T first, T second)
{
    if (!isValue(first) || !isValue(second))
        return {};
    first = finiteBound(first);
    second = finiteBound(second);
    if (second < first)
        std::swap(first, second);
    const RangeChange change{first != minimum, second != maximum};
    minimum = first;
    maximum = second;
    return change;
}

} // namespace TypedValue
