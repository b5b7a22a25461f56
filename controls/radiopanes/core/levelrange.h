// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <limits>
#include <span>

namespace RadioPanes {

/// Lowest and highest level of some bins, in dB. By default it holds no level.
struct LevelRange
{
    /// In dB; the lowest above the highest for an empty range.
    float minimum = std::numeric_limits<float>::infinity();
    float maximum = -std::numeric_limits<float>::infinity();

    /// Whether nothing was added.
    bool isEmpty() const { return !(minimum <= maximum); }
    void add(float level) // noLevel changes nothing: it compares false with everything
    {
        minimum = level < minimum ? level : minimum;
        maximum = level > maximum ? level : maximum;
    }
    /// Nothing happens for an empty range.
    void add(const LevelRange& other)
    {
        minimum = other.minimum < minimum ? other.minimum : minimum;
        maximum = other.maximum > maximum ? other.maximum : maximum;
    }
    bool operator==(const LevelRange&) const = default;
};

/// The range of all `levels`.
RADIOPANES_EXPORT LevelRange rangeOf(std::span<const float> levels);
/// The highest of the levels, with less work; minus infinity without any.
RADIOPANES_EXPORT float highestOf(std::span<const float> levels);

} // namespace RadioPanes
