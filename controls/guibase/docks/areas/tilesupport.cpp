// SPDX-License-Identifier: MIT
#include "tilesupport.h"

#include "dockareasupport_p.h"
#include "gridplacement_p.h"
#include "tilegrid_p.h"

#include <guibase/docks/dockarrangement.h>
#include <guibase/docks/docksizes.h>

#include <QAction>
#include <QDockWidget>
#include <QStyle>

namespace QMainWindowHelpers {

namespace {

constexpr const char* propertyName = "QMainWindowHelpers_TileSupport_instance";

std::optional<TileGrid> gridOf(const QList<QDockWidget*>& docks, const QSize& available)
{
    QList<QSize> minimumSizes;
    for (const QDockWidget* dock : docks)
        minimumSizes << dock->minimumSize();
    return fitTileGrid(minimumSizes, available);
}

/// The docks of an area in title order, with the grid that fits them.
struct Tiling
{
    QList<QDockWidget*> docks;
    QSize available;
    std::optional<TileGrid> grid;
};

Tiling tilingOf(const QMainWindow& mainWindow, Qt::DockWidgetArea area,
                const QList<QDockWidget*>& candidates)
{
    Tiling tiling{candidates, {}, {}};
    if (tiling.docks.size() < 2)
        return tiling;
    DockArrangement::sortByTitle(tiling.docks);
    tiling.available = DockArrangement::geometryOf(tiling.docks, mainWindow, area).size();
    tiling.grid = gridOf(tiling.docks, tiling.available);
    return tiling;
}

bool isTilePossible(const QMainWindow& mainWindow, Qt::DockWidgetArea area,
                    const QList<QDockWidget*>& candidates)
{
    return tilingOf(mainWindow, area, candidates).grid.has_value();
}

constexpr DockAreaOperation operation{
    propertyName,
    "tileDockWidgetArea_%1",
    &isTilePossible,
    &TileSupport::tileDockWidgets,
    {{
        {Qt::LeftDockWidgetArea, DockIcon::TileLeft,
         QT_TRANSLATE_NOOP("QMainWindowHelpers::TileSupport", "Tile docks on the left")},
        {Qt::RightDockWidgetArea, DockIcon::TileRight,
         QT_TRANSLATE_NOOP("QMainWindowHelpers::TileSupport", "Tile docks on the right")},
        {Qt::TopDockWidgetArea, DockIcon::TileTop,
         QT_TRANSLATE_NOOP("QMainWindowHelpers::TileSupport", "Tile docks at the top")},
        {Qt::BottomDockWidgetArea, DockIcon::TileBottom,
         QT_TRANSLATE_NOOP("QMainWindowHelpers::TileSupport", "Tile docks at the bottom")},
    }},
};

DockAreaSignals signalsOf(TileSupport& support)
{
    using Support = TileSupport;
    static constexpr std::array<void (Support::*)(bool), 4> inArea{
        &Support::isTileDockWidgetsPossibleInLeftDockWidgetAreaChanged,
        &Support::isTileDockWidgetsPossibleInRightDockWidgetAreaChanged,
        &Support::isTileDockWidgetsPossibleInTopDockWidgetAreaChanged,
        &Support::isTileDockWidgetsPossibleInBottomDockWidgetAreaChanged,
    };
    return {
        [&support](Qt::DockWidgetArea area, bool possible) {
            Q_EMIT support.isTileDockWidgetsPossibleChanged(area, possible);
        },
        [&support](std::size_t area, bool possible) {
            const auto send = inArea[area];
            Q_EMIT(support.*send)(possible);
        },
        [&support](Qt::DockWidgetArea area) { Q_EMIT support.dockWidgetsTiled(area); },
        [&support] { Q_EMIT support.dockWidgetsTiled(); },
    };
}

/// The sizes grown together until, with the separators between them, they fill the extent.
QList<int> fill(const QList<int>& sizes, int extent, int separator)
{
    return spreadSurplus(sizes, extent - TileGrid::sum(sizes) - (sizes.size() - 1) * separator);
}

QList<QPair<QDockWidget*, QSize>> sizesOf(const GridPlacement::GuardedDocks& docks,
                                          const TileGrid& grid, const QSize& available,
                                          int separator)
{
    const int columns = grid.columns();
    const QList<int> widths = fill(grid.columnWidths, available.width(), separator);
    const QList<int> heights = fill(grid.rowHeights, available.height(), separator);
    QList<QPair<QDockWidget*, QSize>> sizes;
    for (int i = 0; i < docks.size(); ++i) {
        int height = heights[i / columns];
        // Above empty cells a dock is as high as the rest of its column.
        for (int cell = i + columns; docks.size() <= cell && cell < columns * heights.size();
             cell += columns)
            height += separator + heights[cell / columns];
        sizes << qMakePair(docks[i].data(), QSize(widths[i % columns], height));
    }
    return sizes;
}

} // namespace

TileSupport* TileSupport::install(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas)
{
    TileSupport* existing = get(mainWindow);
    return existing != nullptr ? existing : new TileSupport(mainWindow, areas);
}

TileSupport* TileSupport::get(const QMainWindow& mainWindow)
{
    return AttachedHelpers::get<TileSupport>(mainWindow, propertyName);
}

TileSupport::TileSupport(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas)
    : QObject(&mainWindow)
    , d(std::make_unique<DockAreaSupport>(*this, mainWindow, areas, operation, signalsOf(*this)))
{
    connect(&mainWindow, &QObject::destroyed, this, &TileSupport::onMainWindowDestroyed);
    d->start(createDockWidgetAreaActionMap(areas, this));
}

TileSupport::~TileSupport() = default;

bool TileSupport::isTileDockWidgetsPossible(const QMainWindow& mainWindow, Qt::DockWidgetArea area)
{
    return isTilePossible(mainWindow, area, DockArrangement::candidates(mainWindow, area));
}

bool TileSupport::tileDockWidgets(QMainWindow& mainWindow, Qt::DockWidgetArea area)
{
    if (DockArrangement::Rearrangement::isUnderWay(mainWindow))
        return false;
    const Tiling tiling = tilingOf(mainWindow, area, DockArrangement::candidates(mainWindow, area));
    if (!tiling.grid)
        return false;
    const QPointer<QMainWindow> window(&mainWindow);
    const DockArrangement::Rearrangement rearrangement(mainWindow);
    DockSizes::FrozenWindow frozen(mainWindow);
    GridPlacement::GuardedDocks docks(tiling.docks.begin(), tiling.docks.end());
    std::optional<TileGrid> grid = tiling.grid;
    int columns = grid->columns();
    // Those that are left when a receiver of the toolkit's signals deletes some make a new grid.
    while (GridPlacement::place(window, area, docks, columns) == GridPlacement::Result::DocksLost) {
        grid = gridOf(QList<QDockWidget*>(docks.begin(), docks.end()), tiling.available);
        columns = grid ? grid->columns() : columns;
    }
    GridPlacement::show(window, docks);
    if (!window || !grid)
        return true;
    const int separator =
        mainWindow.style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, &mainWindow);
    frozen.giveSizes(sizesOf(docks, *grid, tiling.available, separator),
                     DockSizes::Squeeze::FromBothSides);
    return true;
}

bool TileSupport::isTileDockWidgetsPossible(Qt::DockWidgetArea area) const
{
    return d->isPossible(area);
}

QAction& TileSupport::tileDockWidgetsAction(Qt::DockWidgetArea area) const
{
    return d->action(area);
}

QMainWindow* TileSupport::mainWindow() const
{
    return d->mainWindow();
}

QFlags<Qt::DockWidgetArea> TileSupport::dockWidgetAreas()
{
    return d->areas();
}

bool TileSupport::eventFilter(QObject* watched, QEvent* event)
{
    return d->eventFilter(watched, event);
}

bool TileSupport::tileDockWidgets(Qt::DockWidgetArea area)
{
    return d->perform(area);
}

bool TileSupport::tileDockWidgetsInLeftDockWidgetArea()
{
    return tileDockWidgets(Qt::LeftDockWidgetArea);
}

bool TileSupport::tileDockWidgetsInRightDockWidgetArea()
{
    return tileDockWidgets(Qt::RightDockWidgetArea);
}

bool TileSupport::tileDockWidgetsInTopDockWidgetArea()
{
    return tileDockWidgets(Qt::TopDockWidgetArea);
}

bool TileSupport::tileDockWidgetsInBottomDockWidgetArea()
{
    return tileDockWidgets(Qt::BottomDockWidgetArea);
}

void TileSupport::onMainWindowDestroyed()
{
    disconnect();
}

void TileSupport::emitIsTileDockWidgetsPossibleSignals(QFlags<Qt::DockWidgetArea> areas)
{
    d->announce(areas);
}

QMap<Qt::DockWidgetArea, QAction*>
TileSupport::createDockWidgetAreaActionMap(QFlags<Qt::DockWidgetArea> areas, QObject* parent)
{
    return d->createActions(areas, parent);
}

} // namespace QMainWindowHelpers
