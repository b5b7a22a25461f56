// SPDX-License-Identifier: MIT
#pragma once

#include "chunkedarray.h"
#include "panenames.h"

#include <radiopanes/core/levelrange.h>
#include <radiopanes/core/sweep.h>

#include <QtGlobal>

#include <deque>
#include <vector>

namespace bandmonitor {

/// A band-scan recording: sweeps in the order in which they were received. It never moves what it
/// holds: sweeps, segments and levels that it handed out stay valid until dropBefore() takes them
/// out, or as long as it lives. Memory is below twice what the levels need, and so for segments.
class Recording final : public SweepHistory
{
public:
    Recording();
    ~Recording() override;
    Q_DISABLE_COPY_MOVE(Recording)

    /// Copies `segments` and their levels as a new last sweep. The segments need not be sorted.
    /// Without any segment nothing happens. Times may repeat and run backward.
    void append(quint64 timeUs, std::span<const Segment> segments);

    /// Takes out the sweeps before `index`; the others keep their numbers.
    void dropBefore(qsizetype index);
    /// The oldest sweep that may stay when all may take so many bytes; the newest two always may.
    qsizetype firstWithin(std::size_t bytes) const;

    qsizetype first() const override { return m_first; }
    qsizetype count() const override { return m_first + static_cast<qsizetype>(m_sweeps.size()); }
    bool isEmpty() const { return m_sweeps.empty(); }
    Sweep sweep(qsizetype index) const override;

    /// Lowest and highest frequency of all sweeps, those before first() included, in Hz; both 0
    /// while there was none.
    double lowHz() const { return m_lowHz; }
    double highHz() const { return m_highHz; }
    /// Lowest and highest level of these sweeps, in dB; nothing without any level.
    std::optional<float> minimumLevel() const;
    std::optional<float> maximumLevel() const;
    std::size_t largestBinCount() const override { return m_largestBinCount; }

    /// How many levels are held in all.
    std::size_t levelCount() const { return m_levels.size(); }
    /// Bytes of memory reserved for levels, segments and sweeps.
    std::size_t reservedBytes() const;

private:
    static std::size_t heldBytes(const Sweep& sweep);

    ChunkedArray<float> m_levels;
    ChunkedArray<Segment> m_segments;
    std::deque<Sweep> m_sweeps;
    qsizetype m_first = 0;
    std::vector<Segment> m_scratch;
    double m_lowHz = 0;
    double m_highHz = 0;
    LevelRange m_range;
    std::size_t m_largestBinCount = 0;
};

} // namespace bandmonitor
