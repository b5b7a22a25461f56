// SPDX-License-Identifier: MIT
#include "columnreducer.h"

#include <algorithm>
#include <cmath>

namespace RadioPanes {

namespace {

// Powers of two, so that a block is found by a shift instead of a division.
constexpr unsigned baseShift = 4;
constexpr unsigned factorShift = 2;
constexpr std::size_t baseBlock = std::size_t{1} << baseShift;
constexpr std::size_t blockFactor = std::size_t{1} << factorShift;

constexpr float noMaximum = -std::numeric_limits<float>::infinity();

LevelRange rangeOfBlocks(std::span<const float> minima, std::span<const float> maxima)
{
    LevelRange range;
    for (std::size_t i = 0; i < minima.size(); ++i)
        range.add(LevelRange{minima[i], maxima[i]});
    return range;
}

/// As highestOf(). Most columns touch a few bins or blocks: a call takes longer than these.
float highestOfFew(std::span<const float> levels)
{
    constexpr std::size_t few = 8;
    if (levels.size() >= few)
        return highestOf(levels);
    float highest = noMaximum;
    for (const float level : levels)
        highest = level > highest ? level : highest;
    return highest;
}

// A column takes in levels as a range, or as their maximum alone.

void addLevels(LevelRange& column, std::span<const float> levels)
{
    constexpr std::size_t few = 8; // taken in here in less time than a call takes
    if (levels.size() >= few)
        return column.add(rangeOf(levels));
    for (const float level : levels)
        column.add(level);
}

void addLevels(float& column, std::span<const float> levels)
{
    column = std::max(column, highestOfFew(levels));
}

void addBlocks(LevelRange& column, std::span<const float> minima, std::span<const float> maxima)
{
    column.add(rangeOfBlocks(minima, maxima));
}

void addBlocks(float& column, std::span<const float>, std::span<const float> maxima)
{
    column = std::max(column, highestOfFew(maxima));
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
        std::size_t column = m_firstColumn;
        for (; column < m_endColumn && edgeOf(column) < 0; ++column)
            useClamped(column, use);
        // Both edges are inside: nothing to clamp, and the right edge is the next left one.
        auto first = static_cast<qint64>(std::min(edgeOf(column) + rounding, m_binCount));
        for (; column < m_endColumn; ++column) {
            const double right = edgeOf(column + 1);
            if (!(right + rounding < m_binCount))
                break;
            const auto next = static_cast<qint64>(right + rounding);
            const qint64 end = next + (right - rounding > static_cast<double>(next) ? 1 : 0);
            use(column, static_cast<std::size_t>(first),
                static_cast<std::size_t>(std::max(end, first + 1)));
            first = next;
        }
        for (; column < m_endColumn; ++column)
            useClamped(column, use);
    }

private:
    // A bin that reaches into a column by less than this share of a bin does so by rounding.
    static constexpr double rounding = 1e-6;

    /// In bins from the start of the segment.
    double edgeOf(std::size_t column) const
    {
        return m_firstBin + static_cast<double>(static_cast<qint64>(column)) * m_binsPerColumn;
    }

    template <typename Use>
    void useClamped(std::size_t column, Use& use) const
    {
        const double low = edgeOf(column) + rounding;
        const double first = std::clamp(low, 0.0, m_binCount);
        const double end = std::clamp(edgeOf(column + 1) - rounding, 0.0, m_binCount);
        // Cutting off the fraction is much faster than the functions that round.
        const auto firstBin = static_cast<std::size_t>(first);
        auto endBin = static_cast<std::size_t>(end);
        endBin += static_cast<double>(endBin) < end ? 1 : 0;
        if (low >= 0 && first < m_binCount)
            endBin = std::max(endBin, firstBin + 1);
        if (firstBin < endBin)
            use(column, firstBin, endBin);
    }

    double m_binCount;
    double m_columnHz;
    double m_binsPerColumn;
    double m_firstBin;
    std::size_t m_firstColumn = 0;
    std::size_t m_endColumn = 0;
};

/// False when nothing can be seen in the view.
bool isVisible(const ColumnView& view, std::size_t columns)
{
    const double width = view.highHz - view.lowHz;
    return columns > 0 && std::isfinite(width) && width / static_cast<double>(columns) > 0;
}

bool isInView(const Segment& segment, const ColumnView& view)
{
    return segment.startHz < view.highHz && segment.endHz() > view.lowHz;
}

template <typename Column>
void reduceExactly(const Segment& segment, const ColumnBins& bins, std::span<Column> columns)
{
    bins.forEach([&](std::size_t column, std::size_t first, std::size_t end) {
        addLevels(columns[column], segment.levels.subspan(first, end - first));
    });
}

template <typename Column>
void reduceAll(const Sweep& sweep, const ColumnView& view, std::span<Column> columns)
{
    if (!isVisible(view, columns.size()))
        return;
    for (const Segment& segment : sweep.segments) {
        if (isInView(segment, view))
            reduceExactly(segment, ColumnBins(segment, view, columns.size()), columns);
    }
}

} // namespace

void reduceToColumns(const Sweep& sweep, const ColumnView& view, std::span<LevelRange> columns)
{
    std::fill(columns.begin(), columns.end(), LevelRange());
    reduceAll(sweep, view, columns);
}

void reduceToMaxima(const Sweep& sweep, const ColumnView& view, std::span<float> columns)
{
    std::fill(columns.begin(), columns.end(), noMaximum);
    addMaxima(sweep, view, columns);
}

void addMaxima(const Sweep& sweep, const ColumnView& view, std::span<float> columns)
{
    reduceAll(sweep, view, columns);
}

LevelPyramid::LevelPyramid() = default;

LevelPyramid::LevelPyramid(const Sweep& sweep)
{
    m_hops.reserve(sweep.segments.size());
    for (const Segment& segment : sweep.segments) {
        Hop& hop = m_hops.emplace_back();
        hop.segment = segment;
        Blocks blocks;
        blocks.reserve(segment.levels.size() / baseBlock + 1);
        for (std::size_t at = 0; at < segment.levels.size(); at += baseBlock) {
            const std::size_t size = std::min(baseBlock, segment.levels.size() - at);
            blocks.add(rangeOf(segment.levels.subspan(at, size)));
        }
        m_levels.add(rangeOfBlocks(blocks.minima, blocks.maxima));
        while (blocks.maxima.size() > blockFactor) {
            Blocks coarser = blocks.coarser();
            hop.blocks.push_back(std::move(blocks));
            blocks = std::move(coarser);
        }
        hop.blocks.push_back(std::move(blocks));
    }
}

void LevelPyramid::Blocks::reserve(std::size_t count)
{
    minima.reserve(count);
    maxima.reserve(count);
}

void LevelPyramid::Blocks::add(const LevelRange& range)
{
    minima.push_back(range.minimum);
    maxima.push_back(range.maximum);
}

LevelPyramid::Blocks LevelPyramid::Blocks::coarser() const
{
    Blocks result;
    result.reserve(maxima.size() / blockFactor + 1);
    for (std::size_t at = 0; at < maxima.size(); at += blockFactor) {
        const std::size_t size = std::min(blockFactor, maxima.size() - at);
        result.add(rangeOfBlocks(std::span(minima).subspan(at, size),
                                 std::span(maxima).subspan(at, size)));
    }
    return result;
}

template <typename Column>
void LevelPyramid::reduceTo(const ColumnView& view, std::span<Column> columns) const
{
    if (!isVisible(view, columns.size()))
        return;
    for (const Hop& hop : m_hops) {
        if (!isInView(hop.segment, view))
            continue;
        const ColumnBins bins(hop.segment, view, columns.size());
        // A block reaches out of a column by all its bins but one, at most.
        const double largestBlock = bins.binsPerColumn() / 4 + 1;
        if (largestBlock < static_cast<double>(baseBlock)) {
            reduceExactly(hop.segment, bins, columns);
            continue;
        }
        std::size_t level = 0;
        unsigned shift = baseShift;
        while (level + 1 < hop.blocks.size() &&
               static_cast<double>(std::size_t{1} << (shift + factorShift)) <= largestBlock) {
            ++level;
            shift += factorShift;
        }
        const std::span<const float> minima(hop.blocks[level].minima);
        const std::span<const float> maxima(hop.blocks[level].maxima);
        bins.forEach([&](std::size_t column, std::size_t first, std::size_t end) {
            const std::size_t begin = first >> shift;
            const std::size_t count = ((end - 1) >> shift) - begin + 1;
            addBlocks(columns[column], minima.subspan(begin, count), maxima.subspan(begin, count));
        });
    }
}

void LevelPyramid::reduce(const ColumnView& view, std::span<LevelRange> columns) const
{
    std::fill(columns.begin(), columns.end(), LevelRange());
    reduceTo(view, columns);
}

void LevelPyramid::reduceMaxima(const ColumnView& view, std::span<float> columns) const
{
    std::fill(columns.begin(), columns.end(), noMaximum);
    reduceTo(view, columns);
}

} // namespace RadioPanes
