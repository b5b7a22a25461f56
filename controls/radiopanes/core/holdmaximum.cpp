// SPDX-License-Identifier: MIT
#include "holdmaximum.h"

#include <algorithm>
#include <tuple>

namespace RadioPanes {

namespace {

bool comesBefore(const Segment& left, const Segment& right)
{
    const auto key = [](const Segment& segment) {
        return std::tuple(segment.startHz, segment.stepHz, segment.levels.size());
    };
    return key(left) < key(right);
}

} // namespace

void HoldMaximum::clear()
{
    m_segments.clear();
    m_levels.clear();
    m_binCount = 0;
    m_timeUs = 0;
}

void HoldMaximum::add(const Sweep& sweep)
{
    m_timeUs = sweep.timeUs;
    for (const Segment& segment : sweep.segments) {
        std::vector<float>* held = find(segment);
        if (held == nullptr) {
            insert(segment);
            continue;
        }
        for (std::size_t i = 0; i < held->size(); ++i) {
            const float level = segment.levels[i];
            float& maximum = (*held)[i];
            const bool keep = maximum >= level || level != level;
            maximum = keep ? maximum : level;
        }
    }
}

Sweep HoldMaximum::sweep() const
{
    return makeSweep(m_timeUs, m_segments);
}

std::vector<float>* HoldMaximum::find(const Segment& segment)
{
    const auto at = std::lower_bound(m_segments.begin(), m_segments.end(), segment, comesBefore);
    if (at == m_segments.end() || comesBefore(segment, *at))
        return nullptr;
    return &m_levels[static_cast<std::size_t>(at - m_segments.begin())];
}

void HoldMaximum::insert(const Segment& segment)
{
    if (m_segments.size() >= maximumHops || m_binCount + segment.levels.size() > maximumBins)
        return;
    const auto at = std::lower_bound(m_segments.begin(), m_segments.end(), segment, comesBefore);
    const auto index = at - m_segments.begin();
    const auto levels =
        m_levels.emplace(m_levels.begin() + index, segment.levels.begin(), segment.levels.end());
    m_segments.insert(at, segment)->levels = *levels;
    m_binCount += segment.levels.size();
}

} // namespace RadioPanes
