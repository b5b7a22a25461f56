// SPDX-License-Identifier: MIT
#pragma once

#include "sweep.h"

#include <radiopanes/radiopanes_export.h>

#include <optional>
#include <span>

namespace RadioPanes {

/// A level that is set for a frequency.
struct LevelPoint
{
    /// Where the level counts.
    double hertz = 0;
    double levelDb = 0;

    bool operator==(const LevelPoint&) const = default;
};

/// The frequency of the first bin whose level is above the line through `points`, which must be in
/// order of frequency. Between two points the line is straight; outside of them there is none, and
/// a single point counts for the bin that it lies in. Nothing when no bin is above. The time
/// follows the bins and the points.
RADIOPANES_EXPORT std::optional<double> firstAbove(const Sweep& sweep,
                                                   std::span<const LevelPoint> points);

} // namespace RadioPanes
