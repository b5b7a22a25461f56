// SPDX-License-Identifier: MIT
#include "tilegrid_p.h"

#include <algorithm>
#include <numeric>

namespace {

TileGrid minimumGrid(const QList<QSize>& minimumSizes, int rows, int columns)
{
    TileGrid grid{QList<int>(columns, 0), QList<int>(rows, 0)};
    for (int i = 0; i < minimumSizes.size(); ++i) {
        int& width = grid.columnWidths[i % columns];
        int& height = grid.rowHeights[i / columns];
        width = std::max(width, minimumSizes[i].width());
        height = std::max(height, minimumSizes[i].height());
    }
    return grid;
}

} // namespace

qint64 TileGrid::sum(const QList<int>& sizes)
{
    return std::accumulate(sizes.begin(), sizes.end(), qint64(0));
}

std::optional<TileGrid> fitTileGrid(const QList<QSize>& minimumSizes, const QSize& available)
{
    const int docks = static_cast<int>(minimumSizes.size());
    if (docks < 2)
        return std::nullopt;
    for (int rows = 1; rows <= std::min(docks, TileGrid::maximumRows); ++rows) {
        const int columns = (docks + rows - 1) / rows;
        if (columns > TileGrid::maximumColumns)
            continue;
        TileGrid grid = minimumGrid(minimumSizes, rows, columns);
        if (TileGrid::sum(grid.columnWidths) <= available.width() &&
            TileGrid::sum(grid.rowHeights) <= available.height())
            return grid;
    }
    return std::nullopt;
}

QList<int> spreadSurplus(QList<int> sizes, qint64 surplus)
{
    if (sizes.isEmpty() || surplus <= 0)
        return sizes;
    QList<int> ascending = sizes;
    std::sort(ascending.begin(), ascending.end());
    // The smallest sizes rise together, like water, as far as the surplus reaches.
    qint64 level = ascending.first();
    qint64 rising = 1;
    for (; rising < ascending.size(); ++rising) {
        const qint64 cost = (ascending[rising] - level) * rising;
        if (cost > surplus)
            break;
        surplus -= cost;
        level = ascending[rising];
    }
    level += surplus / rising;
    qint64 odd = surplus % rising;
    for (int& size : sizes) {
        if (size > level)
            continue;
        size = static_cast<int>(level) + (odd > 0 ? 1 : 0);
        odd -= odd > 0 ? 1 : 0;
    }
    return sizes;
}
