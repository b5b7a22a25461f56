// SPDX-License-Identifier: MIT
#include "waterfalllines_p.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace RadioPanes {

namespace {
// Above this many bins in all lines the pyramids would take too much memory; zooming then reduces
// the bins themselves again.
constexpr qsizetype largestPyramidHistory = qsizetype{64} << 20;
} // namespace

WaterfallLines::WaterfallLines() = default;
WaterfallLines::~WaterfallLines() = default;

void WaterfallLines::forgetLines()
{
    for (Row& row : m_rows)
        row.line = -1;
    m_columnsLine = -1;
}

void WaterfallLines::setHistory(std::shared_ptr<const SweepHistory> history)
{
    m_history = std::move(history);
    m_newest = -1;
    m_top = -1;
    m_rows.assign(m_rows.size(), {});
    m_columnsLine = -1;
}

void WaterfallLines::resize(int width, int rows)
{
    if (m_image.width() == width && rowCount() == rows)
        return;
    // The rows belong to other sweeps when their number changes; the pyramids move with them.
    std::vector<Row> kept(static_cast<std::size_t>(rows));
    for (Row& row : m_rows) {
        if (rows == 0 || row.pyramidSweep < 0 || row.pyramidSweep <= m_top - rows)
            continue;
        Row& place = kept[static_cast<std::size_t>(rows - 1 - row.pyramidSweep % rows)];
        place.pyramidSweep = row.pyramidSweep;
        place.pyramid = std::move(row.pyramid);
    }
    m_rows = std::move(kept);
    m_image = QImage(width, rows, QImage::Format_RGB32);
    m_columns.resize(static_cast<std::size_t>(width));
    forgetLines();
}

void WaterfallLines::setBand(const ColumnView& band)
{
    m_band = band;
    forgetLines();
}

void WaterfallLines::setColors(const LevelColors& colors)
{
    m_colors = colors;
    forgetLines();
}

void WaterfallLines::setSweepsPerLine(qsizetype sweeps)
{
    if (sweeps == m_sweepsPerLine)
        return;
    m_sweepsPerLine = sweeps;
    m_rows.assign(m_rows.size(), {});
    m_columnsLine = -1;
}

void WaterfallLines::setNewest(qsizetype sweep, std::shared_ptr<const LevelPyramid> pyramid)
{
    m_newest = sweep;
    if (!pyramid || sweep < 0 || m_sweepsPerLine > 1 || rowCount() == 0)
        return;
    Row& row = m_rows[static_cast<std::size_t>(rowOf(sweep))];
    row.pyramidSweep = sweep;
    row.pyramid = std::move(pyramid);
}

void WaterfallLines::setTop(qsizetype line)
{
    m_top = line;
}

int WaterfallLines::rowOf(qsizetype line) const
{
    return static_cast<int>(rowCount() - 1 - line % rowCount());
}

std::pair<qsizetype, qsizetype> WaterfallLines::sweepsOf(qsizetype line) const
{
    const qsizetype first = line * m_sweepsPerLine;
    return {first, std::min(first + m_sweepsPerLine - 1, m_newest)};
}

bool WaterfallLines::isDrawn(qsizetype line) const
{
    return holds(m_rows[static_cast<std::size_t>(rowOf(line))], line);
}

bool WaterfallLines::holds(const Row& row, qsizetype line) const
{
    return row.line == line && row.last == sweepsOf(line).second;
}

qsizetype WaterfallLines::nextMissing(qsizetype line, qsizetype lowest) const
{
    if (line < lowest)
        return line;
    // Older lines are in the rows that follow; a division for each would take long.
    auto row = static_cast<std::size_t>(rowOf(line));
    while (line >= lowest && holds(m_rows[row], line)) {
        --line;
        row = row + 1 < m_rows.size() ? row + 1 : 0;
    }
    return line;
}

std::optional<quint64> WaterfallLines::timeOf(qsizetype line) const
{
    if (line < 0 || line > m_top || line <= m_top - rowCount())
        return std::nullopt;
    const qsizetype sweep = sweepsOf(line).second;
    if (sweep >= m_history->first())
        return m_history->timeOf(sweep);
    return isDrawn(line) ? std::optional(m_rows[static_cast<std::size_t>(rowOf(line))].timeUs)
                         : std::nullopt;
}

bool WaterfallLines::draw(qsizetype budget)
{
    if (!m_history || rowCount() == 0)
        return true;
    const qsizetype lowest = std::max(m_top - rowCount() + 1, oldest());
    for (qsizetype line = nextMissing(m_top, lowest); line >= lowest;
         line = nextMissing(line - 1, lowest)) {
        if (budget <= 0)
            return false;
        Row& row = m_rows[static_cast<std::size_t>(rowOf(line))];
        budget -= m_sweepsPerLine == 1 ? drawSweep(line, row) : drawRun(line, row, budget);
        if (!isDrawn(line))
            return false;
    }
    return true;
}

qsizetype WaterfallLines::drawSweep(qsizetype sweep, Row& row)
{
    const auto width = static_cast<qsizetype>(m_columns.size());
    // The levels that a pyramid refers to go with their sweep.
    if (row.pyramidSweep != sweep || sweep < m_history->first())
        row.pyramid.reset();
    row.pyramidSweep = -1;
    const Sweep levels = m_history->sweep(sweep);
    const auto bins = static_cast<qsizetype>(m_history->largestBinCount());
    qsizetype work = width;
    if (!row.pyramid && !levels.isEmpty() && bins * rowCount() <= largestPyramidHistory) {
        row.pyramid = std::make_shared<LevelPyramid>(levels);
        work += bins;
    }
    if (row.pyramid) {
        row.pyramidSweep = sweep;
        row.pyramid->reduceMaxima(m_band, m_columns);
    } else {
        std::ranges::fill(m_columns, -std::numeric_limits<float>::infinity());
        m_history->addMaxima(sweep, sweep + 1, m_band, m_columns);
        work += bins;
    }
    m_columnsLine = -1;
    row.line = sweep;
    row.last = sweep;
    row.timeUs = levels.timeUs;
    showColumns(sweep);
    return work;
}

/// Does a part of a run that is too long for the budget.
qsizetype WaterfallLines::drawRun(qsizetype line, Row& row, qsizetype budget)
{
    auto [first, last] = sweepsOf(line);
    // The newest line grows by one sweep after the other.
    if (m_columnsLine == line && row.line == line && row.last < last)
        first = row.last + 1;
    else
        std::ranges::fill(m_columns, -std::numeric_limits<float>::infinity());
    first = std::clamp(m_history->first(), first, last);
    const qsizetype work = static_cast<qsizetype>(m_history->largestBinCount()) + 1;
    last = std::min(last, first + budget / work);
    m_history->addMaxima(first, last + 1, m_band, m_columns);
    m_columnsLine = line;
    row.line = line;
    row.last = last;
    row.timeUs = m_history->timeOf(last);
    showColumns(line);
    return (last - first + 1) * work;
}

void WaterfallLines::showColumns(qsizetype line)
{
    m_colors.apply(m_columns, {reinterpret_cast<QRgb*>(m_image.scanLine(rowOf(line))),
                               static_cast<std::size_t>(m_image.width())});
}

} // namespace RadioPanes
