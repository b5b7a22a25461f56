// SPDX-License-Identifier: MIT
#include "docks/areaactions.h"

#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>

using QMainWindowHelpers::TabifySupport;
using QMainWindowHelpers::TileSupport;

namespace bandmonitor {

AreaActions::AreaActions(QMainWindow& window, QDockWidget& dock)
    : QObject(&dock)
    , m_window(window)
    , m_dock(dock)
    , m_tabify(new QAction(this))
    , m_tile(new QAction(this))
{
    TabifySupport* tabify = TabifySupport::get(window);
    TileSupport* tile = TileSupport::get(window);
    connect(m_tabify, &QAction::triggered, tabify,
            [this, tabify] { tabify->tabifyDockWidgets(area()); });
    connect(m_tile, &QAction::triggered, tile, [this, tile] { tile->tileDockWidgets(area()); });
    const auto refreshOwn = [this](Qt::DockWidgetArea changed) {
        if (changed == area())
            refresh();
    };
    connect(tabify, &TabifySupport::isTabifyDockWidgetsPossibleChanged, this, refreshOwn);
    connect(tile, &TileSupport::isTileDockWidgetsPossibleChanged, this, refreshOwn);
    connect(&dock, &QDockWidget::dockLocationChanged, this, &AreaActions::refresh);
    connect(&dock, &QDockWidget::topLevelChanged, this, &AreaActions::refresh);
    refresh();
}

AreaActions::~AreaActions() = default;

Qt::DockWidgetArea AreaActions::area() const
{
    return m_dock.isFloating() ? Qt::NoDockWidgetArea : m_window.dockWidgetArea(&m_dock);
}

void AreaActions::refresh()
{
    const TabifySupport* tabify = TabifySupport::get(m_window);
    const TileSupport* tile = TileSupport::get(m_window);
    if (tabify == nullptr || tile == nullptr) // on the way to the end
        return;
    const auto show = [](QAction* action, const QAction& model, bool possible) {
        action->setVisible(possible);
        if (!possible)
            return;
        action->setText(model.text());
        // A new icon makes a new layout even when it is the same one, and that leads here again.
        if (action->icon().cacheKey() != model.icon().cacheKey())
            action->setIcon(model.icon());
    };
    show(m_tabify, tabify->tabifyDockWidgetsAction(area()),
         tabify->isTabifyDockWidgetsPossible(area()));
    show(m_tile, tile->tileDockWidgetsAction(area()), tile->isTileDockWidgetsPossible(area()));
}

} // namespace bandmonitor
