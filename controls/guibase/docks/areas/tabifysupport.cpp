// SPDX-License-Identifier: MIT
#include "tabifysupport.h"

#include "dockareasupport_p.h"

#include <guibase/docks/updatesblocker.h>

namespace QMainWindowHelpers {

namespace {

constexpr const char* propertyName = "QMainWindowHelpers_TabifySupport_instance";

bool isTabifyPossible(const QMainWindow&, Qt::DockWidgetArea, const QList<QDockWidget*>& candidates)
{
    return candidates.size() >= 2;
}

const DockAreaOperation<TabifySupport>& operation()
{
    using Support = TabifySupport;
    static constexpr DockAreaOperation<Support> table{
        propertyName,
        "tabifyDockWidgetArea_%1",
        &isTabifyPossible,
        &Support::tabifyDockWidgets,
        &Support::isTabifyDockWidgetsPossibleChanged,
        &Support::dockWidgetsTabified,
        &Support::dockWidgetsTabified,
        {{
            {Qt::LeftDockWidgetArea, DockIcon::TabifyLeft,
             QT_TRANSLATE_NOOP("QMainWindowHelpers::TabifySupport", "Tabify docks on the left"),
             &Support::tabifyDockWidgetsInLeftDockWidgetArea,
             &Support::isTabifyDockWidgetsPossibleInLeftDockWidgetAreaChanged},
            {Qt::RightDockWidgetArea, DockIcon::TabifyRight,
             QT_TRANSLATE_NOOP("QMainWindowHelpers::TabifySupport", "Tabify docks on the right"),
             &Support::tabifyDockWidgetsInRightDockWidgetArea,
             &Support::isTabifyDockWidgetsPossibleInRightDockWidgetAreaChanged},
            {Qt::TopDockWidgetArea, DockIcon::TabifyTop,
             QT_TRANSLATE_NOOP("QMainWindowHelpers::TabifySupport", "Tabify docks at the top"),
             &Support::tabifyDockWidgetsInTopDockWidgetArea,
             &Support::isTabifyDockWidgetsPossibleInTopDockWidgetAreaChanged},
            {Qt::BottomDockWidgetArea, DockIcon::TabifyBottom,
             QT_TRANSLATE_NOOP("QMainWindowHelpers::TabifySupport", "Tabify docks at the bottom"),
             &Support::tabifyDockWidgetsInBottomDockWidgetArea,
             &Support::isTabifyDockWidgetsPossibleInBottomDockWidgetAreaChanged},
        }},
    };
    return table;
}

} // namespace

TabifySupport* TabifySupport::install(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas)
{
    return DockAreaSupportPrivate<TabifySupport>::install(mainWindow, areas, propertyName);
}

TabifySupport* TabifySupport::get(const QMainWindow& mainWindow)
{
    return AttachedHelpers::get<TabifySupport>(mainWindow, propertyName);
}

TabifySupport::TabifySupport(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas)
    : QObject(&mainWindow)
    , d(std::make_unique<DockAreaSupportPrivate<TabifySupport>>(*this, mainWindow, areas,
                                                                operation()))
{
    d->start(mainWindow, createDockWidgetAreaActionMap(areas, this));
}

TabifySupport::~TabifySupport() = default;

bool TabifySupport::isTabifyDockWidgetsPossible(const QMainWindow& mainWindow,
                                                Qt::DockWidgetArea area)
{
    return isTabifyPossible(mainWindow, area, DockArrangement::candidates(mainWindow, area));
}

bool TabifySupport::tabifyDockWidgets(QMainWindow& mainWindow, Qt::DockWidgetArea area)
{
    if (DockArrangement::Rearrangement::isUnderWay(mainWindow) ||
        !isTabifyDockWidgetsPossible(mainWindow, area))
        return false;
    const QPointer<QMainWindow> window(&mainWindow);
    const DockArrangement::Rearrangement rearrangement(mainWindow);
    const UpdatesBlocker blocker(mainWindow);
    QList<QDockWidget*> docks = DockArrangement::candidates(mainWindow, area);
    DockArrangement::sortByTitle(docks);
    const QList<QPointer<QDockWidget>> guarded(docks.begin(), docks.end());
    const QPointer<QDockWidget>& first = guarded.first();
    for (const QPointer<QDockWidget>& other : guarded) {
        // Receivers of the toolkit's signals may have deleted any of them.
        if (window && first && other && other != first)
            window->tabifyDockWidget(first, other);
    }
    return true;
}

bool TabifySupport::isTabifyDockWidgetsPossible(Qt::DockWidgetArea area) const
{
    const QMainWindow* window = mainWindow();
    return window != nullptr && isTabifyDockWidgetsPossible(*window, area);
}

QAction& TabifySupport::tabifyDockWidgetsAction(Qt::DockWidgetArea area) const
{
    return d->action(area);
}

QMainWindow* TabifySupport::mainWindow() const
{
    return qobject_cast<QMainWindow*>(parent());
}

QFlags<Qt::DockWidgetArea> TabifySupport::dockWidgetAreas()
{
    return d->areas();
}

bool TabifySupport::eventFilter(QObject* watched, QEvent* event)
{
    return d->eventFilter(watched, event);
}

bool TabifySupport::tabifyDockWidgets(Qt::DockWidgetArea area)
{
    return d->perform(area);
}

bool TabifySupport::tabifyDockWidgetsInLeftDockWidgetArea()
{
    return tabifyDockWidgets(Qt::LeftDockWidgetArea);
}

bool TabifySupport::tabifyDockWidgetsInRightDockWidgetArea()
{
    return tabifyDockWidgets(Qt::RightDockWidgetArea);
}

bool TabifySupport::tabifyDockWidgetsInTopDockWidgetArea()
{
    return tabifyDockWidgets(Qt::TopDockWidgetArea);
}

bool TabifySupport::tabifyDockWidgetsInBottomDockWidgetArea()
{
    return tabifyDockWidgets(Qt::BottomDockWidgetArea);
}

void TabifySupport::onMainWindowDestroyed()
{
    disconnect();
}

void TabifySupport::emitIsTabifyDockWidgetsPossibleSignals(QFlags<Qt::DockWidgetArea> areas)
{
    d->announce(areas);
}

QMap<Qt::DockWidgetArea, QAction*>
TabifySupport::createDockWidgetAreaActionMap(QFlags<Qt::DockWidgetArea> areas, QObject* parent)
{
    return d->createActions(areas, parent);
}

} // namespace QMainWindowHelpers
