// SPDX-License-Identifier: MIT
#include "overviewlevels.h"

#include "columnreducer.h"

#include <algorithm>
#include <cmath>

namespace RadioPanes {

namespace {

void takeHighest(std::span<float> levels, std::span<const float> others)
{
    for (std::size_t i = 0; i < levels.size(); ++i)
        levels[i] = others[i] > levels[i] ? others[i] : levels[i];
}

} // namespace

OverviewLevels::OverviewLevels()
    : m_scratch(cellCount)
{}

OverviewLevels::~OverviewLevels() = default;

void OverviewLevels::clear()
{
    *this = OverviewLevels();
}

qsizetype OverviewLevels::columnCount() const
{
    return std::ssize(m_levels) / cellCount;
}

std::span<float> OverviewLevels::cells(qsizetype index)
{
    return std::span(m_levels).subspan(static_cast<std::size_t>(index * cellCount), cellCount);
}

std::span<const float> OverviewLevels::column(qsizetype index) const
{
    return std::span(m_levels).subspan(static_cast<std::size_t>(index * cellCount), cellCount);
}

void OverviewLevels::add(const Sweep& sweep)
{
    if (!sweep.isEmpty() &&
        (sweep.lowHz < m_lowHz || sweep.highHz > m_highHz || m_lowHz == m_highHz))
        widen(sweep.lowHz, sweep.highHz);
    if (m_sweepCount == maximumColumns * m_sweepsPerColumn)
        mergeColumns();
    if (m_sweepCount % m_sweepsPerColumn == 0)
        m_levels.resize(m_levels.size() + cellCount, -std::numeric_limits<float>::infinity());
    ++m_sweepCount;
    if (sweep.isEmpty())
        return;
    reduceToMaxima(sweep, {m_lowHz, m_highHz}, m_scratch);
    takeHighest(cells(columnCount() - 1), m_scratch);
}

void OverviewLevels::mergeColumns()
{
    m_sweepsPerColumn *= 2;
    const qsizetype half = columnCount() / 2;
    for (qsizetype column = 0; column < half; ++column) {
        const std::span<float> merged = cells(column);
        std::ranges::copy(cells(2 * column), merged.begin());
        takeHighest(merged, cells(2 * column + 1));
    }
    m_levels.resize(static_cast<std::size_t>(half * cellCount));
}

/// Each level goes to all cells that its former cell touches now.
void OverviewLevels::widen(double lowHz, double highHz)
{
    const bool isFirst = m_lowHz == m_highHz;
    const ColumnView before{m_lowHz, m_highHz};
    m_lowHz = isFirst ? lowHz : std::min(lowHz, m_lowHz);
    m_highHz = isFirst ? highHz : std::max(highHz, m_highHz);
    if (isFirst)
        return;
    const double cellHz = (before.highHz - before.lowHz) / cellCount;
    std::vector<float> former(cellCount);
    for (qsizetype column = 0; column < columnCount(); ++column) {
        const std::span<float> levels = cells(column);
        std::ranges::copy(levels, former.begin());
        const Segment segment{before.lowHz, cellHz, 0, former};
        reduceToMaxima(makeSweep(0, {&segment, 1}), {m_lowHz, m_highHz}, levels);
    }
}

} // namespace RadioPanes
