// SPDX-License-Identifier: MIT
#pragma once

#include "levelrange.h"
#include "sweep.h"

#include <radiopanes/radiopanes_export.h>

#include <limits>
#include <optional>
#include <span>

namespace RadioPanes {

// What can be measured in a sweep. All frequencies are edges or centres of bins: no figure is finer
// than the bins are. Bins without a level end what is measured around them.

/// A bin of a sweep.
struct BinLevel
{
    double hertz = 0;  ///< Its centre.
    double stepHz = 0; ///< Its width.
    /// Of the whole bin.
    float levelDb = 0;

    bool operator==(const BinLevel&) const = default;
};

/// The bin that covers the frequency; nothing where there is none, or no level.
RADIOPANES_EXPORT std::optional<BinLevel> binAt(const Sweep& sweep, double hertz);

/// The highest bin whose centre is at most `reachHz` away; the nearest of equal ones.
RADIOPANES_EXPORT std::optional<BinLevel> highestNear(const Sweep& sweep, double hertz,
                                                      double reachHz);

enum class Direction { Down, Up };

/// What a peak must have at least.
struct PeakLimits
{
    float excursionDb = 6; ///< In dB, above the valleys on both sides.
    float levelDb = -std::numeric_limits<float>::infinity(); ///< In dB.
};

/// The first peak below or above the frequency, without the one that covers it: the highest bin
/// between two valleys. Behind the end of a hop counts as lower.
RADIOPANES_EXPORT std::optional<BinLevel>
nextPeak(const Sweep& sweep, double hertz, Direction direction, const PeakLimits& limits = {});

/// A level that hardly any bin of noise exceeds, when signals cover up to two thirds of the sweep;
/// minus infinity without any level.
RADIOPANES_EXPORT float noiseCeiling(const Sweep& sweep);

/// A part of the band, in whole bins.
struct Extent
{
    /// Edges of bins.
    double lowHz = 0;
    double highHz = 0;

    /// 0 when it is empty.
    double widthHz() const { return highHz - lowHz; }
    bool operator==(const Extent&) const = default;
};

/// The bins around `hertz` that are at most `dropDb` below the bin there. Nothing without a level
/// there, or where the levels do not fall that far before the hop ends.
RADIOPANES_EXPORT std::optional<Extent> widthBelow(const Sweep& sweep, double hertz,
                                                   float dropDb = 3);

/// The fewest bins from the middle of `range` outwards that hold `share` (0 to 1) of its power:
/// equal parts of the rest, at most, lie below and above. Nothing without any level in the range.
RADIOPANES_EXPORT std::optional<Extent> occupiedWidth(const Sweep& sweep, const Extent& range,
                                                      double share = 0.99);

/// The range of levels that a picture of these sweeps begins with. It leaves out the `outside`
/// share of the bins at either end, two at least. The highest bins count all the same where they
/// are at most 100 dB above its low end: a carrier of one bin is seen, and bad bins cannot widen
/// the range beyond that. In steps of 0.1 dB, from -500 to 500 dB. Empty without levels. The time
/// follows the bins.
RADIOPANES_EXPORT LevelRange usualLevels(std::span<const Sweep> sweeps, double outside = 1e-4);

} // namespace RadioPanes
