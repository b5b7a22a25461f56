// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSize>

#include <optional>

/// How docks are laid out as a grid: dock i is in row i / columns and column i % columns.
struct TileGrid
{
    static constexpr int maximumRows = 10;
    static constexpr int maximumColumns = 10;

    QList<int> columnWidths;
    QList<int> rowHeights;

    static qint64 sum(const QList<int>& sizes);
    int columns() const { return static_cast<int>(columnWidths.size()); }
    int rows() const { return static_cast<int>(rowHeights.size()); }
    bool operator==(const TileGrid&) const = default;
};

/// The grid with the fewest rows in which the minimum sizes (pixels, title order) fit the available
/// size: columns are as wide as their widest, rows as high as their highest member. Null when there
/// are fewer than two docks or no grid fits.
std::optional<TileGrid> fitTileGrid(const QList<QSize>& minimumSizes, const QSize& available);

/// Hands the surplus pixels out one by one, each to the smallest size, the first of equal ones.
/// A surplus of 0 or less changes nothing. Takes n log n steps for n sizes, whatever the surplus.
QList<int> spreadSurplus(QList<int> sizes, qint64 surplus);
