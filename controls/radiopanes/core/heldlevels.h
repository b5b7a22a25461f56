// SPDX-License-Identifier: MIT
#pragma once

#include "sweep.h"

#include <radiopanes/radiopanes_export.h>

#include <vector>

namespace RadioPanes {

/// Holds for each bin the highest, the lowest or the mean level of all sweeps so far. Hops are told
/// apart by start, step and number of bins, so a receiver that changes its hops adds to what is
/// held. To stay bounded, hops beyond `maximumHops` or `maximumBins` are left out.
class RADIOPANES_EXPORT HeldLevels
{
public:
    /// What of the levels is held.
    enum class Kind {
        Maximum,
        Minimum,
        Average, ///< Of the powers, not of the dB; after `averagedSweeps` older ones fade out.
    };
    /// The bounds that the class comment speaks of.
    static constexpr std::size_t maximumHops = 4096;
    static constexpr std::size_t maximumBins = std::size_t{4} << 20;
    static constexpr unsigned averagedSweeps = 32;

    /// Holds nothing yet.
    explicit HeldLevels(Kind kind = Kind::Maximum);

    /// Forgets all levels.
    void clear();
    /// Takes the levels of `sweep` into account; bins without a level change nothing.
    void add(const Sweep& sweep);

    /// Whether no sweep has come since the beginning or the last clear().
    bool isEmpty() const { return m_segments.empty(); }
    /// What is held, as a sweep with the time of the last one added. Valid until the next
    /// clear() or add().
    Sweep sweep() const;

private:
    struct Hop
    {
        std::vector<float> levels; ///< In dB.
        std::vector<float> powers; ///< Linear; of averages only.
        unsigned sweeps = 0;
    };

    Hop* find(const Segment& segment);
    void insert(const Segment& segment);
    static void average(Hop& hop, std::span<const float> levels);

    Kind m_kind;
    std::vector<Hop> m_hops;
    std::vector<Segment> m_segments; ///< beside m_hops, by start, step and number of bins
    std::size_t m_binCount = 0;
    quint64 m_timeUs = 0;
};

} // namespace RadioPanes
