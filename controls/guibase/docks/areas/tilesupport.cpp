// SPDX-License-Identifier: MIT
#include "tilesupport.h"

#include "dockareasupport_p.h"
#include "tilegrid_p.h"

#include <guibase/docks/docksizes.h>

#include <QCoreApplication>
#include <QLayout>
#include <QStyle>

namespace QMainWindowHelpers {

namespace {

constexpr const char* propertyName = "QMainWindowHelpers_TileSupport_instance";

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
    QList<QSize> minimumSizes;
    for (const QDockWidget* dock : std::as_const(tiling.docks))
        minimumSizes << dock->minimumSize();
    tiling.grid = fitTileGrid(minimumSizes, tiling.available);
    return tiling;
}

bool isTilePossible(const QMainWindow& mainWindow, Qt::DockWidgetArea area,
                    const QList<QDockWidget*>& candidates)
{
    return tilingOf(mainWindow, area, candidates).grid.has_value();
}

const DockAreaOperation<TileSupport>& operation()
{
    using Support = TileSupport;
    static constexpr DockAreaOperation<Support> table{
        propertyName,
        "tileDockWidgetArea_%1",
        &isTilePossible,
        &Support::tileDockWidgets,
        &Support::isTileDockWidgetsPossibleChanged,
        &Support::dockWidgetsTiled,
        &Support::dockWidgetsTiled,
        {{
            {Qt::LeftDockWidgetArea, DockIcon::TileLeft,
             QT_TRANSLATE_NOOP("QMainWindowHelpers::TileSupport", "Tile docks on the left"),
             &Support::tileDockWidgetsInLeftDockWidgetArea,
             &Support::isTileDockWidgetsPossibleInLeftDockWidgetAreaChanged},
            {Qt::RightDockWidgetArea, DockIcon::TileRight,
             QT_TRANSLATE_NOOP("QMainWindowHelpers::TileSupport", "Tile docks on the right"),
             &Support::tileDockWidgetsInRightDockWidgetArea,
             &Support::isTileDockWidgetsPossibleInRightDockWidgetAreaChanged},
            {Qt::TopDockWidgetArea, DockIcon::TileTop,
             QT_TRANSLATE_NOOP("QMainWindowHelpers::TileSupport", "Tile docks at the top"),
             &Support::tileDockWidgetsInTopDockWidgetArea,
             &Support::isTileDockWidgetsPossibleInTopDockWidgetAreaChanged},
            {Qt::BottomDockWidgetArea, DockIcon::TileBottom,
             QT_TRANSLATE_NOOP("QMainWindowHelpers::TileSupport", "Tile docks at the bottom"),
             &Support::tileDockWidgetsInBottomDockWidgetArea,
             &Support::isTileDockWidgetsPossibleInBottomDockWidgetAreaChanged},
        }},
    };
    return table;
}

using GuardedDocks = QList<QPointer<QDockWidget>>;

void split(QMainWindow& mainWindow, QDockWidget* after, QDockWidget* dock,
           Qt::Orientation direction)
{
    if (after != nullptr && dock != nullptr)
        mainWindow.splitDockWidget(after, dock, direction);
}

/// The sizes grown together until, with the separators between them, they fill the extent.
QList<int> fill(const QList<int>& sizes, int extent, int separator)
{
    return spreadSurplus(sizes, extent - TileGrid::sum(sizes) - (sizes.size() - 1) * separator);
}

/// Keeps the window from laying its contents out anew for every dock that is shown, and before the
/// docks have their sizes.
class LayoutPause
{
public:
    explicit LayoutPause(QMainWindow& mainWindow)
        : m_window(&mainWindow)
        , m_wasEnabled(mainWindow.layout()->isEnabled())
    {
        mainWindow.layout()->setEnabled(false);
    }
    ~LayoutPause()
    {
        if (m_window.isNull())
            return;
        m_window->layout()->setEnabled(m_wasEnabled);
        // The layout has let its requests pass, and believes that one is still on its way.
        QCoreApplication::postEvent(m_window, new QEvent(QEvent::LayoutRequest));
    }
    Q_DISABLE_COPY_MOVE(LayoutPause)

private:
    QPointer<QMainWindow> m_window;
    bool m_wasEnabled;
};

/// Takes the docks out of the layout and puts them back as a grid. Receivers of the toolkit's
/// signals may delete any of them, and the window, meanwhile.
void layOut(const QPointer<QMainWindow>& window, Qt::DockWidgetArea area, const GuardedDocks& docks,
            int columns)
{
    for (const QPointer<QDockWidget>& dock : docks) {
        if (window && dock)
            window->removeDockWidget(dock);
    }
    if (window && docks.first())
        window->addDockWidget(area, docks.first());
    for (int i = 1; i < docks.size() && window; ++i) {
        if (i < columns)
            split(*window, docks[i - 1], docks[i], Qt::Horizontal);
        else
            split(*window, docks[i - columns], docks[i], Qt::Vertical);
    }
    if (!window)
        return;
    const LayoutPause pause(*window);
    for (const QPointer<QDockWidget>& dock : docks) {
        if (window && dock)
            dock->show();
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
}

} // namespace

TileSupport* TileSupport::install(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas)
{
    return DockAreaSupportPrivate<TileSupport>::install(mainWindow, areas, propertyName);
}

TileSupport* TileSupport::get(const QMainWindow& mainWindow)
{
    return AttachedHelpers::get<TileSupport>(mainWindow, propertyName);
}

TileSupport::TileSupport(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas)
    : QObject(&mainWindow)
    , d(std::make_unique<DockAreaSupportPrivate<TileSupport>>(*this, mainWindow, areas,
                                                              operation()))
{
    d->start(mainWindow, createDockWidgetAreaActionMap(areas, this));
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
    const GuardedDocks docks(tiling.docks.begin(), tiling.docks.end());
    const int columns = tiling.grid->columns();
    DockSizes::FrozenWindow frozen(mainWindow);
    layOut(window, area, docks, columns);
    if (!window)
        return true;
    const int separator =
        mainWindow.style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, &mainWindow);
    const QList<int> widths = fill(tiling.grid->columnWidths, tiling.available.width(), separator);
    const QList<int> heights = fill(tiling.grid->rowHeights, tiling.available.height(), separator);
    QList<QPair<QDockWidget*, QSize>> sizes;
    for (int i = 0; i < docks.size(); ++i) {
        int height = heights[i / columns];
        // Above empty cells a dock is as high as the rest of its column.
        for (int cell = i + columns; docks.size() <= cell && cell < columns * heights.size();
             cell += columns)
            height += separator + heights[cell / columns];
        sizes << qMakePair(docks[i].data(), QSize(widths[i % columns], height));
    }
    frozen.giveSizes(sizes, DockSizes::Squeeze::FromBothSides);
    return true;
}

bool TileSupport::isTileDockWidgetsPossible(Qt::DockWidgetArea area) const
{
    const QMainWindow* window = mainWindow();
    return window != nullptr && isTileDockWidgetsPossible(*window, area);
}

QAction& TileSupport::tileDockWidgetsAction(Qt::DockWidgetArea area) const
{
    return d->action(area);
}

QMainWindow* TileSupport::mainWindow() const
{
    return qobject_cast<QMainWindow*>(parent());
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
