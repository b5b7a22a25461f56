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

qsizetype OverviewLevels::endColumn() const
{
    return m_firstColumn + std::ssize(m_levels) / cellCount;
}

std::size_t OverviewLevels::offsetOf(qsizetype index) const
{
    return static_cast<std::size_t>((index - m_firstColumn) * cellCount);
}

std::span<float> OverviewLevels::cells(qsizetype index)
{
    return std::span(m_levels).subspan(offsetOf(index), cellCount);
}

std::span<const float> OverviewLevels::column(qsizetype index) const
{
    return std::span(m_levels).subspan(offsetOf(index), cellCount);
}

void OverviewLevels::add(const Sweep& sweep)
{
    if (!sweep.isEmpty() &&
        (sweep.lowHz < m_lowHz || sweep.highHz > m_highHz || m_lowHz == m_highHz))
        widen(sweep.lowHz, sweep.highHz);
    if (m_sweepCount % m_sweepsPerColumn == 0)
        makeRoom();
    if (m_sweepCount % m_sweepsPerColumn == 0) // Joined columns may leave room in the last one.
        m_levels.resize(m_levels.size() + cellCount, -std::numeric_limits<float>::infinity());
    ++m_sweepCount;
    if (sweep.isEmpty())
        return;
    reduceToMaxima(sweep, {m_lowHz, m_highHz}, m_scratch);
    takeHighest(cells(endColumn() - 1), m_scratch);
}

void OverviewLevels::makeRoom()
{
    if (endColumn() - m_firstColumn < maximumColumns)
        return;
    const qsizetype gone = std::min(m_firstNeeded / m_sweepsPerColumn, endColumn()) - m_firstColumn;
    if (gone < maximumColumns / 4) // It is worth moving the others.
        return mergeColumns();
    m_levels.erase(m_levels.begin(), m_levels.begin() + gone * cellCount);
    m_firstColumn += gone;
}

void OverviewLevels::mergeColumns()
{
    const qsizetype former = m_firstColumn;
    const qsizetype formerEnd = endColumn();
    std::vector<float> merged;
    merged.reserve(m_levels.size());
    for (qsizetype column = former / 2; 2 * column < formerEnd; ++column) {
        const std::span<const float> first = cells(std::max(2 * column, former));
        const auto begin = merged.insert(merged.end(), first.begin(), first.end());
        takeHighest({begin, merged.end()}, cells(std::min(2 * column + 1, formerEnd - 1)));
    }
    m_levels = std::move(merged);
    m_firstColumn = former / 2;
    m_sweepsPerColumn *= 2;
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
    for (qsizetype column = m_firstColumn; column < endColumn(); ++column) {
        const std::span<float> levels = cells(column);
        std::ranges::copy(levels, former.begin());
        const Segment segment{before.lowHz, cellHz, 0, former};
        reduceToMaxima(makeSweep(0, {&segment, 1}), {m_lowHz, m_highHz}, levels);
    }
}

} // namespace RadioPanes
