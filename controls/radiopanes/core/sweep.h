// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <QtGlobal>

#include <limits>
#include <optional>
#include <span>

namespace RadioPanes {

/// Marks a bin without a level: the receiver wrote `nan`, `inf`, or nothing that a level can be.
inline constexpr float noLevel = std::numeric_limits<float>::quiet_NaN();

/// One hop of a receiver: levels of adjoining bins of equal width. Bin `i` covers the frequencies
/// from `startHz + i * stepHz` up to, but without, `startHz + (i + 1) * stepHz`.
struct Segment
{
    /// The lower edge of the first bin.
    double startHz = 0;
    double stepHz = 1;             ///< width of a bin, greater than 0
    quint64 samples = 0;           ///< how many samples the receiver averaged, as it told
    std::span<const float> levels; ///< in dB; `noLevel` where there is none

    /// The upper edge of the last bin.
    double endHz() const { return startHz + stepHz * static_cast<double>(levels.size()); }
};

/// A bin by its hop and its number there.
struct BinPlace
{
    const Segment* segment = nullptr; ///< null: none
    std::size_t index = 0;            ///< of the bin in the segment
};

/// A view of one sweep: all hops with one time stamp, in order of frequency. It owns nothing.
/// Between hops there may be gaps of any width, and hops may overlap: never make an array with
/// one entry per step over `lowHz` to `highHz`.
struct RADIOPANES_EXPORT Sweep
{
    quint64 timeUs = 0;                ///< microseconds since 1970-01-01T00:00 UTC
    std::span<const Segment> segments; ///< by `startHz`, ascending
    double lowHz = 0;                  ///< start of the first segment
    double highHz = 0;                 ///< highest end of a segment
    std::size_t binCount = 0;          ///< levels in all segments

    /// Whether there is no segment.
    bool isEmpty() const { return segments.empty(); }
    /// The bin that covers `hz`; nothing in a gap and outside. Where hops overlap, the one with the
    /// highest start counts.
    std::optional<BinPlace> placeOf(double hz) const;
    /// The level of that bin, in dB; nothing without a bin, or where it has no level.
    std::optional<float> levelAt(double hz) const;
};

/// Makes a sweep of `segments`, which must be sorted by `startHz`, and works out the rest.
RADIOPANES_EXPORT Sweep makeSweep(quint64 timeUs, std::span<const Segment> segments);

/// The frequencies that a row of pixels shows: column `c` of `n` covers `(highHz - lowHz) / n`
/// from `lowHz + c * (highHz - lowHz) / n` on.
struct ColumnView
{
    /// From here up to, but without, the other.
    double lowHz = 0;
    double highHz = 0;

    bool operator==(const ColumnView&) const = default;
};

/// Sweeps by number, for panes that show many of them. What sweep() returns must stay valid as long
/// as the history lives and has not left that sweep behind.
///
/// A history that is larger than the memory lets sweep() return empty sweeps for those that it does
/// not hold, and reads them when timeOf() and addMaxima() ask.
class RADIOPANES_EXPORT SweepHistory
{
public:
    virtual ~SweepHistory();

    /// One more than the number of the newest sweep.
    virtual qsizetype count() const = 0;
    /// The oldest sweep that is still here: what sweep() returned for those before it is valid no
    /// longer.
    virtual qsizetype first() const { return 0; }
    /// The sweep at `index`, from first(); an empty sweep for an index outside.
    virtual Sweep sweep(qsizetype index) const = 0;
    /// The largest number of levels in one sweep.
    virtual std::size_t largestBinCount() const = 0;
    /// The time of the sweep at `index`; 0 for an index outside.
    virtual quint64 timeOf(qsizetype index) const;
    /// Raises each column to the highest level of the bins that touch it in the sweeps from `first`
    /// up to, but without, `end`; those that are not here change nothing.
    virtual void addMaxima(qsizetype first, qsizetype end, const ColumnView& view,
                           std::span<float> columns) const;
};

} // namespace RadioPanes
