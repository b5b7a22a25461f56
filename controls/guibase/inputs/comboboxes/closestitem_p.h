// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

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

/// Whether the search can end. It also ends at a distance that has wrapped: it always has, and
/// users' presets rely on it.
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

/// The values of many items, in which closestItem() is found without looking at all of them.
template <typename T>
class SortedItems
{
public:
    void set(std::span<const T> values)
    {
        m_items.clear();
        for (std::size_t i = 0; i < values.size(); ++i)
            m_items.emplace_back(values[i], i);
        std::sort(m_items.begin(), m_items.end());
    }

    /// Whether closest() may be called: no distance is too large for the type.
    bool canFind(T wanted) const
    {
        return !m_items.empty() && isTrueDistance(wanted, m_items.front().first) &&
               isTrueDistance(wanted, m_items.back().first);
    }

    std::size_t closest(T wanted) const
    {
        const auto above =
            std::lower_bound(m_items.begin(), m_items.end(), std::pair(wanted, std::size_t(0)));
        const auto distanceOf = [wanted](const Item& item) {
            return itemDistance(wanted, item.first);
        };
        T best = above != m_items.end() ? distanceOf(*above) : distanceOf(*std::prev(above));
        if (above != m_items.begin())
            best = std::min(best, distanceOf(*std::prev(above)));
        // Items that are close enough are few, and side by side: the first one of them counts.
        const bool isClose = isCloseEnough(best);
        const auto counts = [&](const Item& item) {
            return isClose ? isCloseEnough(distanceOf(item)) : distanceOf(item) == best;
        };
        std::size_t index = isClose ? m_items.size() : 0;
        const auto take = [&](const Item& item) {
            index = isClose ? std::min(index, item.second) : std::max(index, item.second);
        };
        for (auto item = above; item != m_items.end() && counts(*item); ++item)
            take(*item);
        for (auto item = above; item != m_items.begin() && counts(*std::prev(item)); --item)
            take(*std::prev(item));
        return index;
    }

private:
    using Item = std::pair<T, std::size_t>;

    static bool isTrueDistance(T a, T b)
    {
        if constexpr (std::is_integral_v<T>)
            return static_cast<std::make_signed_t<T>>(itemDistance(a, b)) >= 0;
        else
            return itemDistance(a, b) <= std::numeric_limits<T>::max();
    }

    std::vector<Item> m_items; ///< By value, then index.
};
