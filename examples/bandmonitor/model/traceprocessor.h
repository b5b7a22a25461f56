// SPDX-License-Identifier: MIT
#pragma once

#include "recording.h"

#include <map>
#include <vector>

namespace bandmonitor {

/// How a trace is made of recorded sweeps. At first neutral: it is the sweep as recorded.
struct TraceSettings
{
    double resolutionHz = 0; ///< Bins narrower than it are combined; 0 for none.
    double offsetDb = 0;     ///< Added to all levels.
    quint64 samples = 0;     ///< That many are averaged at least; 0 for the current sweep only.

    bool operator==(const TraceSettings&) const = default;
    bool isNeutral() const { return *this == TraceSettings(); }
};

/// Makes the trace that is shown of the recorded sweeps: averages, combines bins and moves levels,
/// in this order, as a receiver with these settings would. The arithmetic stands in
/// docs/decisions/0062-trace-of-a-receiver.md.
class TraceProcessor
{
public:
    static constexpr qsizetype maximumSweeps = 64;

    const TraceSettings& settings() const { return m_settings; }
    void setSettings(const TraceSettings& settings) { m_settings = settings; }
    /// To be called before another recording is processed.
    void forget() { m_powers.clear(); }

    /// The trace for the sweep at `position`, valid until the next call; the recorded sweep itself
    /// where nothing is to be done.
    Sweep process(const Recording& recording, qsizetype position);

private:
    using Powers = std::vector<double>; ///< Linear; NaN without a level.

    qsizetype firstOfAverage(const Recording& recording, qsizetype position) const;
    const Powers& powersOf(const Recording& recording, qsizetype position);
    void average(const Recording& recording, const Segment& hop, qsizetype first, qsizetype last);
    void addTo(const Segment& hop, const Sweep& sweep, const Powers& powers);
    void combine(std::size_t bins);
    void appendLevels(const Segment& hop, bool asRecorded);

    TraceSettings m_settings;
    std::map<qsizetype, Powers> m_powers; ///< Of whole sweeps, hop by hop, by position.
    Powers m_row;
    Powers m_combined;
    std::vector<unsigned> m_counts;
    std::vector<float> m_levels;
    std::vector<Segment> m_segments;
};

} // namespace bandmonitor
