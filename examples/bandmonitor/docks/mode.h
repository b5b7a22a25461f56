// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

namespace bandmonitor {

/// What the user is doing; each has a layout of its own. The numbers are kept in the configuration.
enum class Mode : int { Search = 0, Measure = 1, Plan = 2 };
inline constexpr std::array allModes{Mode::Search, Mode::Measure, Mode::Plan};
inline constexpr std::size_t modeCount = allModes.size();

template <typename T>
using PerMode = std::array<T, modeCount>;

template <typename T>
const T& forMode(const PerMode<T>& values, Mode mode)
{
    return values[static_cast<std::size_t>(mode)];
}

} // namespace bandmonitor
