// SPDX-License-Identifier: MIT
#include "dockrestore_p.h"

#include "floatingdockkeeper.h"
#include "widgetplacement.h"

#include <guibase/docks/edgehiding.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/maximizeminimizesupport.h>
#include <guibase/records/dockstatecheck.h>

#include <jtbase/windowsystem.h>

#include <QMainWindow>
#include <QToolBar>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

DockRestore::Place placeOf(const QMainWindow& window, QDockWidget& dock)
{
    return {&dock, window.dockWidgetArea(&dock), dock.isFloating(), dock.isHidden(),
            window.tabifiedDockWidgets(&dock).size()};
}

struct FormerDock
{
    QPointer<QDockWidget> dock;
    Qt::DockWidgetArea area;
    QList<QPointer<QDockWidget>> tabs; ///< The others there, if the layout does not know the dock.
    bool isFloating;
    bool isHidden;
};

struct FormerToolBar
{
    QPointer<QToolBar> bar;
    Qt::ToolBarArea area;
    bool beginsLine;
};

std::vector<FormerDock> formerDocks(const QMainWindow& window, const DockStateCheck::Names& known)
{
    std::vector<FormerDock> result;
    const auto docks = QMainWindowHelpers::dockWidgets(window);
    for (QDockWidget* dock : docks) {
        FormerDock former{
            dock, window.dockWidgetArea(dock), {}, dock->isFloating(), dock->isHidden()};
        if (!known.contains(dock->objectName())) {
            const auto tabs = window.tabifiedDockWidgets(dock);
            former.tabs = {tabs.cbegin(), tabs.cend()};
        }
        result.push_back(std::move(former));
    }
    return result;
}

std::vector<FormerToolBar> unknownToolBars(const QMainWindow& window,
                                           const DockStateCheck::Names& known)
{
    std::vector<FormerToolBar> result;
    const auto bars = window.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolBar* bar : bars) {
        if (!known.contains(bar->objectName()))
            result.push_back({bar, window.toolBarArea(bar), window.toolBarBreak(bar)});
    }
    return result;
}

/// The toolkit loses unknown docks whose place among the others is no more, and puts those that
/// were behind a tab beside the others.
void putBack(QMainWindow& window, const FormerDock& former)
{
    QDockWidget* dock = former.dock;
    if (dock == nullptr || dock->parentWidget() != &window || former.area == Qt::NoDockWidgetArea)
        return;
    const bool wasHidden = dock->isHidden();
    if (window.dockWidgetArea(dock) == Qt::NoDockWidgetArea)
        window.addDockWidget(former.area, dock);
    const auto isThere = [&](QDockWidget* other) {
        return other != nullptr && !other->isFloating() &&
               window.dockWidgetArea(other) == former.area;
    };
    const auto other = std::find_if(former.tabs.cbegin(), former.tabs.cend(), isThere);
    if (other != former.tabs.cend() && !dock->isFloating() &&
        window.tabifiedDockWidgets(dock).isEmpty())
        window.tabifyDockWidget(*other, dock);
    if (dock->isHidden() != wasHidden)
        dock->setHidden(wasHidden);
}

/// A maximized dock that the layout wants otherwise becomes normal: the toolkit would only give it
/// another geometry.
void endMaximized(QDockWidget& dock, const MaximizedDocks& maximized)
{
    using QDockWidgetHelpers::MaximizeMinimizeSupport;
    if (!dock.isFloating() || !dock.isVisible() || !dock.isMaximized())
        return;
    const QPointer<QDockWidget> guard(&dock);
    auto* const support = MaximizeMinimizeSupport::get(dock);
    if (maximized.find(dock.objectName()) == maximized.end()) {
        if (support != nullptr)
            support->restoreDockWidget();
        else
            MaximizeMinimizeSupport::restoreDockWidget(dock);
    }
    // Nobody may size it before the compositor has answered. The layout shows it again.
    if (guard && !WindowSystem::placesWindows())
        dock.hide();
}

void maximize(QDockWidget& dock)
{
    using QDockWidgetHelpers::MaximizeMinimizeSupport;
    // Window managers that are late undo it in a dock that has just been floated: a support
    // insists.
    auto* const support = MaximizeMinimizeSupport::install(dock);
    if (dock.isVisible())
        support->maximizeDockWidget();
    else
        support->maximizeWhenShown();
}

void placeFloating(QDockWidget& dock, const MaximizedDocks& maximized)
{
    const auto found = maximized.find(dock.objectName());
    const bool shallMaximize = found != maximized.end() && !dock.isMaximized();
    const QPointer<QDockWidget> guard(&dock);
    if (shallMaximize)
        dock.setGeometry(WidgetPlacement::reachableGeometry(found->second, dock));
    if (guard && dock.isVisible())
        FloatingDockKeeper::keep(dock, FloatingDockKeeper::Place::OnScreen);
    if (guard && shallMaximize)
        maximize(dock);
}

void putBackAtEdge(const FormerDock& former)
{
    if (former.dock && former.dock->isFloating() != former.isFloating)
        former.dock->setFloating(former.isFloating);
    if (former.dock && former.dock->isHidden() != former.isHidden)
        former.dock->setHidden(former.isHidden);
}

/// The toolkit puts all unknown tool bars of an area into one line.
void putBack(QMainWindow& window, const FormerToolBar& former)
{
    if (former.bar && former.beginsLine && window.toolBarArea(former.bar) == former.area &&
        !window.toolBarBreak(former.bar))
        window.insertToolBarBreak(former.bar);
}

DockLayout present(const QMainWindow& window, const DockLayout& former)
{
    DockLayout layout{window.saveState(DockRestore::stateVersion), std::nullopt, {}};
    const auto docks = QMainWindowHelpers::dockWidgets(window);
    for (const QDockWidget* dock : docks) {
        const QString name = dock->objectName();
        if (!dock->isFloating() || !dock->isMaximized() || name.isEmpty())
            continue;
        // The toolkit forgets the place when the window manager maximizes a dock that it has not
        // shown before.
        const auto known = former.maximized.find(name);
        const QRect place =
            known != former.maximized.end() ? known->second : dock->normalGeometry();
        if (place.isValid())
            layout.maximized.emplace(name, place);
    }
    return layout;
}

/// Only sizes are known where programs do not place windows: floating docks keep the places of the
/// former layout.
void keepPlaces(DockLayout& layout, const DockLayout& former)
{
    DockStateCheck::Places places = DockStateCheck::places(former.state, DockRestore::stateVersion);
    for (const auto& [name, place] : former.maximized)
        places.insert_or_assign(name, place.topLeft());
    layout.state =
        DockStateCheck::withPlaces(std::move(layout.state), DockRestore::stateVersion, places);
    for (auto& [name, place] : layout.maximized) {
        if (const auto found = places.find(name); found != places.end())
            place.moveTopLeft(found->second);
    }
}

} // namespace

DockLayout DockRestore::save(const QMainWindow& window, const DockLayout& former)
{
    DockLayout layout = present(window, former);
    if (!WindowSystem::placesWindows())
        keepPlaces(layout, former);
    return layout;
}

void DockRestore::restore(QMainWindow& window, const DockLayout& layout, EdgeDocks edgeDocks)
{
    const auto known =
        layout.names ? layout.names : DockStateCheck::names(layout.state, stateVersion);
    if (!known)
        return;
    const std::vector<FormerDock> docks = formerDocks(window, known->docks);
    const std::vector<FormerToolBar> toolBars = unknownToolBars(window, known->toolBars);

    const QPointer<QMainWindow> guard(&window);
    for (const FormerDock& former : docks) {
        if (former.dock)
            endMaximized(*former.dock, layout.maximized);
    }
    if (!guard)
        return;
    std::optional<EdgeHiding::Pause> pause;
    if (edgeDocks == EdgeDocks::Stay)
        pause.emplace(window);
    window.restoreState(layout.state, stateVersion);
    for (const FormerDock& former : docks) {
        if (guard)
            putBack(window, former);
        if (former.dock && edgeDocks == EdgeDocks::Stay && EdgeHiding::isOn(*former.dock))
            putBackAtEdge(former);
        else if (former.dock && former.dock->isFloating())
            placeFloating(*former.dock, layout.maximized);
    }
    for (const FormerToolBar& former : toolBars) {
        if (guard)
            putBack(window, former);
    }
}

DockRestore::Places DockRestore::places(const QMainWindow& window)
{
    Places result;
    const auto docks = QMainWindowHelpers::dockWidgets(window);
    for (QDockWidget* dock : docks)
        result.push_back(placeOf(window, *dock));
    return result;
}

bool DockRestore::isRearranged(const Places& places)
{
    return std::any_of(places.cbegin(), places.cend(), [](const Place& place) {
        if (!place.dock)
            return false;
        const auto* window = qobject_cast<QMainWindow*>(place.dock->parentWidget());
        return window == nullptr || !(placeOf(*window, *place.dock) == place);
    });
}
