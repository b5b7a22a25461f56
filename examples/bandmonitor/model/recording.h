// SPDX-License-Identifier: MIT
#pragma once

#include "chunkedarray.h"
#include "levelrange.h"

#include <QtGlobal>

#include <limits>
#include <optional>
#include <span>
#include <vector>

namespace bandmonitor {

/// Marks a bin without a level: the receiver wrote `nan`, `inf`, or nothing that a level can be.
inline constexpr float noLevel = std::numeric_limits<float>::quiet_NaN();

/// One hop of a receiver: levels of adjoining bins of equal width. Bin `i` covers the frequencies
/// from `startHz + i * stepHz` up to, but without, `startHz + (i + 1) * stepHz`.
struct Segment
{
    double startHz = 0;
    double stepHz = 1;             ///< width of a bin, greater than 0
    quint64 samples = 0;           ///< how many samples the receiver averaged, as it told
    std::span<const float> levels; ///< in dB; `noLevel` where there is none

    double endHz() const { return startHz + stepHz * static_cast<double>(levels.size()); }
};

/// A view of one sweep: all hops with one time stamp, in order of frequency. It owns nothing.
/// Between hops there may be gaps of any width, and hops may overlap: never make an array with
/// one entry per step over `lowHz` to `highHz`.
struct Sweep
{
    quint64 timeUs = 0;                ///< microseconds since 1970-01-01T00:00 UTC
    std::span<const Segment> segments; ///< by `startHz`, ascending
    double lowHz = 0;                  ///< start of the first segment
    double highHz = 0;                 ///< highest end of a segment
    std::size_t binCount = 0;          ///< levels in all segments

    bool isEmpty() const { return segments.empty(); }
    /// The level of the bin that covers `hz`, in dB; nothing in a gap, outside, or where the bin
    /// has no level. Where hops overlap, the one with the highest start counts.
    std::optional<float> levelAt(double hz) const;
};

/// Makes a sweep of `segments`, which must be sorted by `startHz`, and works out the rest.
Sweep makeSweep(quint64 timeUs, std::span<const Segment> segments);

/// A band-scan recording: sweeps in the order in which they were received. It only grows, and
/// never moves what it holds: sweeps, segments and levels that it handed out stay valid as long
/// as it lives. Memory is below twice what the levels need, and so for segments and sweeps.
class Recording
{
public:
    Recording();
    ~Recording();
    Q_DISABLE_COPY_MOVE(Recording)

    /// Copies `segments` and their levels as a new last sweep. The segments need not be sorted.
    /// Without any segment nothing happens. Times may repeat and run backward.
    void append(quint64 timeUs, std::span<const Segment> segments);

    qsizetype count() const { return static_cast<qsizetype>(m_sweeps.size()); }
    bool isEmpty() const { return m_sweeps.empty(); }
    /// The sweep at `index`, from 0; an empty sweep for an index outside.
    Sweep sweep(qsizetype index) const;

    /// Lowest and highest frequency of all sweeps, in Hz; both 0 while it is empty.
    double lowHz() const { return m_lowHz; }
    double highHz() const { return m_highHz; }
    /// Lowest and highest level of all sweeps, in dB; nothing without any level.
    std::optional<float> minimumLevel() const;
    std::optional<float> maximumLevel() const;
    /// The largest number of levels in one sweep.
    std::size_t largestBinCount() const { return m_largestBinCount; }

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
