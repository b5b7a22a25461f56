// SPDX-License-Identifier: MIT
#include "heldlevels.h"

#include <algorithm>
#include <cmath>
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

/// `keeps(held, level)` tells which of two levels stays; a bin without a level never counts.
template <typename Keeps>
void hold(std::vector<float>& held, std::span<const float> levels, Keeps keeps)
{
    for (std::size_t i = 0; i < held.size(); ++i) {
        const float level = levels[i];
        const bool keep = keeps(held[i], level) || level != level;
        held[i] = keep ? held[i] : level;
    }
}

float powerOf(float level)
{
    constexpr float octavesPerDecibel = 0.33219281F; // log2(10) / 10
    return std::exp2(level * octavesPerDecibel);
}

} // namespace

HeldLevels::HeldLevels(Kind kind)
    : m_kind(kind)
{}

void HeldLevels::clear()
{
    m_segments.clear();
    m_hops.clear();
    m_binCount = 0;
    m_timeUs = 0;
}

void HeldLevels::add(const Sweep& sweep)
{
    m_timeUs = sweep.timeUs;
    for (const Segment& segment : sweep.segments) {
        Hop* hop = find(segment);
        if (hop == nullptr)
            insert(segment);
        else if (m_kind == Kind::Maximum)
            hold(hop->levels, segment.levels, [](float a, float b) { return a >= b; });
        else if (m_kind == Kind::Minimum)
            hold(hop->levels, segment.levels, [](float a, float b) { return a <= b; });
        else
            average(*hop, segment.levels);
    }
}

void HeldLevels::average(Hop& hop, std::span<const float> levels)
{
    hop.sweeps = std::min(hop.sweeps + 1, averagedSweeps);
    const float weight = 1 / static_cast<float>(hop.sweeps);
    for (std::size_t i = 0; i < levels.size(); ++i) {
        if (levels[i] != levels[i])
            continue;
        float& mean = hop.powers[i];
        const float power = powerOf(levels[i]);
        mean = mean != mean ? power : mean + weight * (power - mean);
        hop.levels[i] = 10 * std::log10(mean);
    }
}

Sweep HeldLevels::sweep() const
{
    return makeSweep(m_timeUs, m_segments);
}

HeldLevels::Hop* HeldLevels::find(const Segment& segment)
{
    const auto at = std::lower_bound(m_segments.begin(), m_segments.end(), segment, comesBefore);
    if (at == m_segments.end() || comesBefore(segment, *at))
        return nullptr;
    return &m_hops[static_cast<std::size_t>(at - m_segments.begin())];
}

void HeldLevels::insert(const Segment& segment)
{
    if (m_segments.size() >= maximumHops || m_binCount + segment.levels.size() > maximumBins)
        return;
    const auto at = std::lower_bound(m_segments.begin(), m_segments.end(), segment, comesBefore);
    const auto index = at - m_segments.begin();
    const auto hop = m_hops.emplace(m_hops.begin() + index);
    hop->levels.assign(segment.levels.begin(), segment.levels.end());
    hop->sweeps = 1;
    if (m_kind == Kind::Average) {
        hop->powers.resize(segment.levels.size());
        std::ranges::transform(segment.levels, hop->powers.begin(), powerOf);
    }
    m_segments.insert(at, segment)->levels = hop->levels;
    m_binCount += segment.levels.size();
}

} // namespace RadioPanes
