// SPDX-License-Identifier: MIT
#pragma once

#include "chunkedarray.h"
#include "panenames.h"

#include <radiopanes/core/levelrange.h>
#include <radiopanes/core/sweep.h>

#include <QtGlobal>

#include <vector>

namespace bandmonitor {

/// A band-scan recording: sweeps in the order in which they were received. It only grows, and
/// never moves what it holds: sweeps, segments and levels that it handed out stay valid as long
/// as it lives. Memory is below twice what the levels need, and so for segments and sweeps.
class Recording final : public SweepHistory
{
public:
    Recording();
    ~Recording() override;
    Q_DISABLE_COPY_MOVE(Recording)

    /// Copies `segments` and their levels as a new last sweep. The segments need not be sorted.
    /// Without any segment nothing happens. Times may repeat and run backward.
    void append(quint64 timeUs, std::span<const Segment> segments);

    qsizetype count() const override { return static_cast<qsizetype>(m_sweeps.size()); }
    bool isEmpty() const { return m_sweeps.empty(); }
    Sweep sweep(qsizetype index) const override;

    /// Lowest and highest frequency of all sweeps, in Hz; both 0 while it is empty.
    double lowHz() const { return m_lowHz; }
    double highHz() const { return m_highHz; }
    /// Lowest and highest level of all sweeps, in dB; nothing without any level.
    std::optional<float> minimumLevel() const;
    std::optional<float> maximumLevel() const;
    std::size_t largestBinCount() const override { return m_largestBinCount; }

    /// How many levels are held in all.
    std::size_t levelCount() const { return m_levels.size(); }
    /// Bytes of memory reserved for levels, segments and sweeps.
    std::size_t reservedBytes() const;

private:
    ChunkedArray<float> m_levels;
    ChunkedArray<Segment> m_segments;
    std::vector<Sweep> m_sweeps;
    std::vector<Segment> m_scratch;
    double m_lowHz = 0;
    double m_highHz = 0;
    LevelRange m_range;
    std::size_t m_largestBinCount = 0;
};

} // namespace bandmonitor
