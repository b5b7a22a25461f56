// SPDX-License-Identifier: MIT
#pragma once

#include "levelrange.h"
#include "sweep.h"

#include <radiopanes/radiopanes_export.h>

#include <span>
#include <vector>

namespace RadioPanes {

/// Puts into each column the lowest and highest level of the bins that touch it; columns without
/// any become empty. Exact. The time follows the bins in view plus, per hop in view, the columns
/// that it touches. An empty or reversed view, or one that is not finite, empties all columns.
RADIOPANES_EXPORT void reduceToColumns(const Sweep& sweep, const ColumnView& view,
                                       std::span<LevelRange> columns);
/// The highest levels only; minus infinity in a column without any level.
RADIOPANES_EXPORT void reduceToMaxima(const Sweep& sweep, const ColumnView& view,
                                      std::span<float> columns);
/// The same, but a column that is higher already stays.
RADIOPANES_EXPORT void addMaxima(const Sweep& sweep, const ColumnView& view,
                                 std::span<float> columns);

/// Reduces one sweep to columns again and again, in a time that follows the number of columns
/// and not that of the bins: it keeps lowest and highest levels of blocks of 16, 64, 256, ...
/// bins. Build it once for each new sweep; it takes a sixth of the memory of the sweep's levels,
/// and refers to the levels, which must outlive it (those of a SweepHistory do, as long as that
/// lives).
class RADIOPANES_EXPORT LevelPyramid
{
public:
    LevelPyramid();
    /// Takes time and memory that follow the bins of the sweep.
    explicit LevelPyramid(const Sweep& sweep);

    /// As reduceToColumns(), but a column may also take in bins up to a quarter of a column
    /// beside it. No level is ever lost.
    void reduce(const ColumnView& view, std::span<LevelRange> columns) const;
    /// The highest levels only, with less work; minus infinity in a column without any level.
    void reduceMaxima(const ColumnView& view, std::span<float> columns) const;
    /// The range of the whole sweep.
    LevelRange levels() const { return m_levels; }

private:
    /// Lowest and highest levels of blocks of one size; apart, as often only the highest count.
    struct Blocks
    {
        std::vector<float> minima;
        std::vector<float> maxima;

        void reserve(std::size_t count);
        void add(const LevelRange& range);
        Blocks coarser() const;
    };
    struct Hop
    {
        Segment segment;
        std::vector<Blocks> blocks; ///< blocks[k] of 16 * 4^k bins
    };

    template <typename Column>
    void reduceTo(const ColumnView& view, std::span<Column> columns) const;

    std::vector<Hop> m_hops;
    LevelRange m_levels;
};

} // namespace RadioPanes
