// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <limits>
#include <span>
#include <type_traits>

/// The distance of two numbers in the arithmetic of the type: it wraps where the type is too small.
template <typename T>
T itemDistance(T a, T b)
{
    const T larger = a < b ? b : a;
    const T smaller = a < b ? a : b;
    if constexpr (std::is_integral_v<T>) {
        using Unsigned = std::make_unsigned_t<T>;
        return static_cast<T>(
            static_cast<Unsigned>(static_cast<Unsigned>(larger) - static_cast<Unsigned>(smaller)));
    } else {
        return larger - smaller;
    }
}

/// Whether no other item needs to be looked at. A distance that has wrapped ends the search, too:
/// so it has always been, and users' presets rely on it.
template <typename T>
bool isCloseEnough(T distance)
{
    if constexpr (std::is_integral_v<T>)
        return static_cast<std::make_signed_t<T>>(distance) < 1;
    else
        return distance < std::numeric_limits<T>::epsilon();
}

/// The index of the value that lies closest to `wanted`; the later one of equal distances, but the
/// first one that is equal. 0 when there is none.
template <typename T>
std::size_t closestItem(std::span<const T> values, T wanted)
{
    T best = std::numeric_limits<T>::max();
    std::size_t bestIndex = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const T distance = itemDistance(wanted, values[i]);
        if (!(distance <= best))
            continue;
        best = distance;
        bestIndex = i;
        if (isCloseEnough(best))
            break;
    }
    return bestIndex;
}
