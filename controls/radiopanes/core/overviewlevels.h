// SPDX-License-Identifier: MIT
#pragma once

#include "sweep.h"

#include <radiopanes/radiopanes_export.h>

#include <span>
#include <vector>

namespace RadioPanes {

/// What a whole recording looks like, in bounded memory (1 MB). Each column holds the highest
/// levels of as many sweeps as the others, in cells of equal width over the whole band. When the
/// columns are full, each takes in its neighbour, and twice as many sweeps go into one from then
/// on.
class RADIOPANES_EXPORT OverviewLevels
{
public:
    static constexpr int cellCount = 128;             ///< In a column.
    static constexpr qsizetype maximumColumns = 2048; ///< Then neighbours are joined.

    OverviewLevels();
    ~OverviewLevels();

    /// Forgets all sweeps.
    void clear();
    /// Takes in the next sweep; an empty one counts too. Frequencies beyond those so far widen the
    /// band.
    void add(const Sweep& sweep);

    /// How many sweeps were added.
    qsizetype sweepCount() const { return m_sweepCount; }
    /// 1, 2, 4, ...; the last column may hold fewer.
    qsizetype sweepsPerColumn() const { return m_sweepsPerColumn; }
    /// At most maximumColumns.
    qsizetype columnCount() const;
    /// The highest level in each cell, in dB, from the lowest frequency on; minus infinity without
    /// any level.
    std::span<const float> column(qsizetype index) const;
    /// The ends of the band; both 0 without any sweep.
    double lowHz() const { return m_lowHz; }
    double highHz() const { return m_highHz; }

private:
    void widen(double lowHz, double highHz);
    void mergeColumns();
    std::span<float> cells(qsizetype index);

    std::vector<float> m_levels; ///< One column after the other.
    std::vector<float> m_scratch;
    qsizetype m_sweepCount = 0;
    qsizetype m_sweepsPerColumn = 1;
    double m_lowHz = 0;
    double m_highHz = 0;
};

} // namespace RadioPanes
