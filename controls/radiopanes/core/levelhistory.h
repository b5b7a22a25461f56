// SPDX-License-Identifier: MIT
#pragma once

#include "sweep.h"

#include <radiopanes/radiopanes_export.h>

#include <deque>
#include <vector>

namespace RadioPanes {

/// The last sweeps of a live source, with copies of their levels. Numbers of sweeps only grow: when
/// the limit is reached the oldest ones go, and first() tells the oldest one that is left.
///
/// What sweep() returned for a sweep is valid as long as that sweep is here. The newest two always
/// are.
class RADIOPANES_EXPORT LevelHistory final : public SweepHistory
{
public:
    /// In bytes: 64 MiB.
    static constexpr std::size_t defaultLimit = std::size_t{64} << 20;

    /// `limitBytes` bounds the memory of levels and hops.
    explicit LevelHistory(std::size_t limitBytes = defaultLimit);
    ~LevelHistory() override;
    Q_DISABLE_COPY_MOVE(LevelHistory)

    /// Copies the hops, in any order, as a new last sweep. False, and nothing happens, when there
    /// is none, or one without bins, with a step that is not positive, or with a start or end that
    /// is not finite.
    bool append(quint64 timeUs, std::span<const Segment> segments);

    qsizetype count() const override;
    qsizetype first() const override { return m_first; }
    Sweep sweep(qsizetype index) const override;
    std::size_t largestBinCount() const override { return m_largestBinCount; }
    /// Bytes that the levels and hops take.
    std::size_t bytes() const { return m_bytes; }

private:
    struct Entry
    {
        std::vector<float> levels; ///< Of all hops, one after the other.
        std::vector<Segment> segments;
        Sweep sweep;

        std::size_t bytes() const;
    };

    std::size_t m_limitBytes;
    std::size_t m_bytes = 0;
    std::size_t m_largestBinCount = 0;
    qsizetype m_first = 0;
    std::deque<Entry> m_entries;
};

} // namespace RadioPanes
