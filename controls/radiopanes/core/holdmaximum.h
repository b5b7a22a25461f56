// SPDX-License-Identifier: MIT
#pragma once

#include "sweep.h"

#include <radiopanes/radiopanes_export.h>

#include <vector>

namespace RadioPanes {

/// Holds the highest level that each bin ever had. Hops are told apart by start, step and number
/// of bins, so a receiver that changes its hops adds to what is held. To stay bounded whatever is
/// in a recording, hops beyond `maximumHops` or `maximumBins` are left out.
class RADIOPANES_EXPORT HoldMaximum
{
public:
    static constexpr std::size_t maximumHops = 4096;
    static constexpr std::size_t maximumBins = std::size_t{4} << 20;

    /// Forgets all levels.
    void clear();
    /// Takes the levels of `sweep` into account; bins without a level change nothing.
    void add(const Sweep& sweep);

    bool isEmpty() const { return m_segments.empty(); }
    /// What is held, as a sweep with the time of the last one added. Valid until the next
    /// clear() or add().
    Sweep sweep() const;

private:
    std::vector<float>* find(const Segment& segment);
    void insert(const Segment& segment);

    std::vector<std::vector<float>> m_levels;
    std::vector<Segment> m_segments; ///< beside m_levels, by start, step and number of bins
    std::size_t m_binCount = 0;
    quint64 m_timeUs = 0;
};

} // namespace RadioPanes
