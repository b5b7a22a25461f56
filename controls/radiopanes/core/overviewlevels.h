// SPDX-License-Identifier: MIT
#pragma once

#include "sweep.h"

#include <radiopanes/radiopanes_export.h>

#include <algorithm>
#include <span>
#include <vector>

namespace RadioPanes {

/// What a whole recording looks like, in bounded memory (1 MB). Each column holds the highest
/// levels of as many sweeps as the others, in cells of equal width over the whole band. When the
/// columns are full, those of forgotten sweeps go. Where there are few of them, each column takes
/// in its neighbour, and twice as many sweeps go into one from then on.
class RADIOPANES_EXPORT OverviewLevels
{
public:
    static constexpr int cellCount = 128;             ///< In a column.
    static constexpr qsizetype maximumColumns = 2048; ///< Held at a time.

    OverviewLevels();
    ~OverviewLevels();

    /// Forgets all sweeps.
    void clear();
    /// Takes in the next sweep; an empty one counts too. Frequencies beyond those so far widen the
    /// band.
    void add(const Sweep& sweep);
    /// The sweeps before this one are not needed any more. Their columns may stay for a while.
    void forgetBefore(qsizetype sweep) { m_firstNeeded = std::max(m_firstNeeded, sweep); }

    /// How many sweeps were added.
    qsizetype sweepCount() const { return m_sweepCount; }
    /// 1, 2, 4, ...; the last column may hold fewer.
    qsizetype sweepsPerColumn() const { return m_sweepsPerColumn; }
    /// The columns that are held have the numbers from here up to endColumn(), without that one;
    /// number 0 begins with the first sweep of all.
    qsizetype firstColumn() const { return m_firstColumn; }
    qsizetype endColumn() const;
    /// The highest level in each cell, in dB, from the lowest frequency on; minus infinity without
    /// any level. `index` must be the number of a column that is held.
    std::span<const float> column(qsizetype index) const;
    /// The ends of the band; both 0 without any sweep.
    double lowHz() const { return m_lowHz; }
    double highHz() const { return m_highHz; }

private:
    void widen(double lowHz, double highHz);
    void makeRoom();
    void mergeColumns();
    std::span<float> cells(qsizetype index);
    std::size_t offsetOf(qsizetype index) const;

    std::vector<float> m_levels; ///< One column after the other.
    std::vector<float> m_scratch;
    qsizetype m_sweepCount = 0;
    qsizetype m_sweepsPerColumn = 1;
    qsizetype m_firstColumn = 0;
    qsizetype m_firstNeeded = 0; ///< A sweep.
    double m_lowHz = 0;
    double m_highHz = 0;
};

} // namespace RadioPanes
