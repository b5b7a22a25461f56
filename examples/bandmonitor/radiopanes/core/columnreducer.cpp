// SPDX-License-Identifier: MIT
#include "columnreducer.h"

#include <algorithm>
#include <cmath>

namespace bandmonitor {

namespace {

constexpr std::size_t baseBlock = 8;
constexpr std::size_t blockFactor = 4;

template <typename Value>
LevelRange rangeOfValues(std::span<const Value> values)
{
    LevelRange range;
    for (const Value& value : values)
        range.add(value);
    return range;
}

/// The bins of a segment that each column of a view touches.
class ColumnBins
{
public:
    ColumnBins(const Segment& segment, const ColumnView& view, std::size_t columns)
        : m_binCount(static_cast<double>(segment.levels.size()))
        , m_columnHz((view.highHz - view.lowHz) / static_cast<double>(columns))
        , m_binsPerColumn(m_columnHz / segment.stepHz)
        , m_firstBin((view.lowHz - segment.startHz) / segment.stepHz)
    {
        const double count = static_cast<double>(columns);
        const double first = std::floor((segment.startHz - view.lowHz) / m_columnHz);
        const double end = std::ceil((segment.endHz() - view.lowHz) / m_columnHz);
        m_firstColumn = static_cast<std::size_t>(std::clamp(first, 0.0, count));
        m_endColumn = static_cast<std::size_t>(std::clamp(end, 0.0, count));
    }

    double binsPerColumn() const { return m_binsPerColumn; }

    /// Calls `use(column, firstBin, endBin)` for each column with at least one bin.
    template <typename Use>
    void forEach(Use use) const
    {
        // A bin that reaches into a column by less than this share of a bin does so by rounding.
        constexpr double rounding = 1e-6;
        for (std::size_t column = m_firstColumn; column < m_endColumn; ++column) {
            const double low = m_firstBin + static_cast<double>(column) * m_binsPerColumn;
            const double first = std::floor(low + rounding);
            const double end = std::max(std::ceil(low + m_binsPerColumn - rounding), first + 1);
            const auto firstBin = static_cast<std::size_t>(std::clamp(first, 0.0, m_binCount));
            const auto endBin = static_cast<std::size_t>(std::clamp(end, 0.0, m_binCount));
            if (firstBin < endBin)
                use(column, firstBin, endBin);
        }
    }

private:
    double m_binCount;
    double m_columnHz;
    double m_binsPerColumn;
    double m_firstBin;
    std::size_t m_firstColumn = 0;
    std::size_t m_endColumn = 0;
};

/// Empties the columns; false when nothing can be seen in the view.
bool beginColumns(const ColumnView& view, std::span<LevelRange> columns)
{
    std::fill(columns.begin(), columns.end(), LevelRange());
    const double width = view.highHz - view.lowHz;
    return !columns.empty() && std::isfinite(width) &&
           width / static_cast<double>(columns.size()) > 0;
}

bool isInView(const Segment& segment, const ColumnView& view)
{
    return segment.startHz < view.highHz && segment.endHz() > view.lowHz;
}

void reduceExactly(const Segment& segment, const ColumnBins& bins, std::span<LevelRange> columns)
{
    bins.forEach([&](std::size_t column, std::size_t first, std::size_t end) {
        columns[column].add(rangeOf(segment.levels.subspan(first, end - first)));
    });
}

} // namespace

void reduceToColumns(const Sweep& sweep, const ColumnView& view, std::span<LevelRange> columns)
{
    if (!beginColumns(view, columns))
        return;
    for (const Segment& segment : sweep.segments) {
        if (isInView(segment, view))
            reduceExactly(segment, ColumnBins(segment, view, columns.size()), columns);
    }
}

LevelPyramid::LevelPyramid() = default;

LevelPyramid::LevelPyramid(const Sweep& sweep)
{
    m_hops.reserve(sweep.segments.size());
    for (const Segment& segment : sweep.segments) {
        Hop& hop = m_hops.emplace_back();
        hop.segment = segment;
        std::vector<LevelRange> blocks;
        blocks.reserve(segment.levels.size() / baseBlock + 1);
        for (std::size_t at = 0; at < segment.levels.size(); at += baseBlock) {
            const std::size_t size = std::min(baseBlock, segment.levels.size() - at);
            blocks.push_back(rangeOfValues(segment.levels.subspan(at, size)));
        }
        m_levels.add(rangeOfValues(std::span<const LevelRange>(blocks)));
        while (blocks.size() > blockFactor) {
            std::vector<LevelRange> coarser;
            coarser.reserve(blocks.size() / blockFactor + 1);
            for (std::size_t at = 0; at < blocks.size(); at += blockFactor) {
                const std::size_t size = std::min(blockFactor, blocks.size() - at);
                coarser.push_back(
                    rangeOfValues(std::span<const LevelRange>(blocks).subspan(at, size)));
            }
            hop.blocks.push_back(std::move(blocks));
            blocks = std::move(coarser);
        }
        hop.blocks.push_back(std::move(blocks));
    }
}

void LevelPyramid::reduce(const ColumnView& view, std::span<LevelRange> columns) const
{
    if (!beginColumns(view, columns))
        return;
    for (const Hop& hop : m_hops) {
        if (!isInView(hop.segment, view))
            continue;
        const ColumnBins bins(hop.segment, view, columns.size());
        const double largestBlock = bins.binsPerColumn() / 4;
        if (largestBlock < static_cast<double>(baseBlock)) {
            reduceExactly(hop.segment, bins, columns);
            continue;
        }
        std::size_t level = 0;
        std::size_t block = baseBlock;
        while (level + 1 < hop.blocks.size() &&
               static_cast<double>(block * blockFactor) <= largestBlock) {
            ++level;
            block *= blockFactor;
        }
        const std::span<const LevelRange> blocks(hop.blocks[level]);
        bins.forEach([&](std::size_t column, std::size_t first, std::size_t end) {
            const std::size_t begin = first / block;
            const std::size_t count = (end + block - 1) / block - begin;
            columns[column].add(rangeOfValues(blocks.subspan(begin, count)));
        });
    }
}

} // namespace bandmonitor
