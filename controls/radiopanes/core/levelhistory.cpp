// SPDX-License-Identifier: MIT
#include "levelhistory.h"

#include <algorithm>
#include <cmath>

namespace RadioPanes {

namespace {

constexpr std::size_t keptSweeps = 2;

bool isUsable(const Segment& segment)
{
    return !segment.levels.empty() && segment.stepHz > 0 && std::isfinite(segment.startHz) &&
           std::isfinite(segment.endHz());
}

} // namespace

LevelHistory::LevelHistory(std::size_t limitBytes)
    : m_limitBytes(limitBytes)
{}

LevelHistory::~LevelHistory() = default;

std::size_t LevelHistory::Entry::bytes() const
{
    return levels.capacity() * sizeof(float) + segments.capacity() * sizeof(Segment);
}

bool LevelHistory::append(quint64 timeUs, std::span<const Segment> segments)
{
    if (segments.empty() || !std::ranges::all_of(segments, isUsable))
        return false;
    Entry entry;
    // The memory of a sweep that goes serves the new one.
    while (m_bytes >= m_limitBytes && m_entries.size() >= keptSweeps) {
        entry = std::move(m_entries.front());
        m_entries.pop_front();
        m_bytes -= entry.bytes();
        ++m_first;
    }
    entry.segments.assign(segments.begin(), segments.end());
    std::ranges::stable_sort(entry.segments, {}, &Segment::startHz);
    std::size_t bins = 0;
    for (const Segment& segment : entry.segments)
        bins += segment.levels.size();
    entry.levels.clear();
    entry.levels.reserve(bins);
    for (Segment& segment : entry.segments) {
        const std::size_t begin = entry.levels.size();
        entry.levels.insert(entry.levels.end(), segment.levels.begin(), segment.levels.end());
        segment.levels = std::span(entry.levels).subspan(begin);
    }
    entry.sweep = makeSweep(timeUs, entry.segments);
    m_bytes += entry.bytes();
    m_largestBinCount = std::max(m_largestBinCount, bins);
    m_entries.push_back(std::move(entry)); // the vectors keep their elements in place
    return true;
}

qsizetype LevelHistory::count() const
{
    return m_first + static_cast<qsizetype>(m_entries.size());
}

Sweep LevelHistory::sweep(qsizetype index) const
{
    return index >= m_first && index < count()
               ? m_entries[static_cast<std::size_t>(index - m_first)].sweep
               : Sweep();
}

} // namespace RadioPanes
