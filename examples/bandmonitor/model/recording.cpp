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
    m_lowHz = count() == 0 ? sweep.lowHz : std::min(m_lowHz, sweep.lowHz);
    m_highHz = count() == 0 ? sweep.highHz : std::max(m_highHz, sweep.highHz);
    m_largestBinCount = std::max(m_largestBinCount, sweep.binCount);
    m_sweeps.push_back(sweep);
}

void Recording::dropBefore(qsizetype index)
{
    for (; m_first < index && !m_sweeps.empty(); ++m_first) {
        const std::span<const Segment> segments = m_sweeps.front().segments;
        for (const Segment& segment : segments)
            m_levels.release(segment.levels);
        m_segments.release(segments);
        m_sweeps.pop_front();
    }
}

std::size_t Recording::heldBytes(const Sweep& sweep)
{
    return sizeof(Sweep) + sweep.segments.size() * sizeof(Segment) + sweep.binCount * sizeof(float);
}

qsizetype Recording::firstWithin(std::size_t bytes) const
{
    const std::size_t held = m_levels.size() * sizeof(float) + m_segments.size() * sizeof(Segment) +
                             m_sweeps.size() * sizeof(Sweep);
    // A limit on what is held, instead of what is reserved: chunks go round then, and sweeps go one
    // by one. Freeing and allocating chunks would leave holes in the memory of the process.
    const std::size_t slack =
        m_levels.slack() * sizeof(float) + m_segments.slack() * sizeof(Segment);
    const std::size_t allowed = bytes - std::min(slack, bytes / 2);
    qsizetype first = m_first;
    for (std::size_t left = held; left > allowed && first < count() - 2; ++first)
        left -= heldBytes(sweep(first));
    return first;
}

Sweep Recording::sweep(qsizetype index) const
{
    return index >= m_first && index < count() ? m_sweeps[static_cast<std::size_t>(index - m_first)]
                                               : Sweep();
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
           m_sweeps.size() * sizeof(Sweep) + m_scratch.capacity() * sizeof(Segment);
}

} // namespace bandmonitor
