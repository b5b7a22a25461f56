// SPDX-License-Identifier: MIT
#include "recording.h"

#include <algorithm>

namespace bandmonitor {

namespace {

bool startsBefore(const Segment& left, const Segment& right)
{
    return left.startHz < right.startHz;
}

} // namespace

Recording::Recording() = default;

Recording::~Recording() = default;

void Recording::append(quint64 timeUs, std::span<const Segment> segments)
{
    m_scratch.assign(segments.begin(), segments.end());
    std::erase_if(m_scratch, [](const Segment& segment) { return segment.levels.empty(); });
    if (m_scratch.empty())
        return;
    if (!std::is_sorted(m_scratch.begin(), m_scratch.end(), startsBefore))
        std::stable_sort(m_scratch.begin(), m_scratch.end(), startsBefore);
    for (Segment& segment : m_scratch) {
        segment.levels = m_levels.append(segment.levels);
        m_range.add(rangeOf(segment.levels));
    }

    const Sweep sweep = makeSweep(timeUs, m_segments.append(m_scratch));
    m_lowHz = m_sweeps.empty() ? sweep.lowHz : std::min(m_lowHz, sweep.lowHz);
    m_highHz = m_sweeps.empty() ? sweep.highHz : std::max(m_highHz, sweep.highHz);
    m_largestBinCount = std::max(m_largestBinCount, sweep.binCount);
    m_sweeps.push_back(sweep);
}

Sweep Recording::sweep(qsizetype index) const
{
    return index >= 0 && index < count() ? m_sweeps[static_cast<std::size_t>(index)] : Sweep();
}

std::optional<float> Recording::minimumLevel() const
{
    return m_range.isEmpty() ? std::nullopt : std::optional(m_range.minimum);
}

std::optional<float> Recording::maximumLevel() const
{
    return m_range.isEmpty() ? std::nullopt : std::optional(m_range.maximum);
}

std::size_t Recording::reservedBytes() const
{
    return m_levels.capacity() * sizeof(float) + m_segments.capacity() * sizeof(Segment) +
           m_sweeps.capacity() * sizeof(Sweep) + m_scratch.capacity() * sizeof(Segment);
}

} // namespace bandmonitor
