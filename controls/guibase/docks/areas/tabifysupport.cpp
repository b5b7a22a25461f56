// SPDX-License-Identifier: MIT
#include "tabifysupport.h"

#include "dockareasupport_p.h"

#include <guibase/docks/dockarrangement.h>
#include <guibase/docks/updatesblocker.h>

#include <QAction>
#include <QDockWidget>

namespace QMainWindowHelpers {

namespace {

constexpr const char* propertyName = "QMainWindowHelpers_TabifySupport_instance";

bool isTabifyPossible(const QMainWindow&, Qt::DockWidgetArea, const QList<QDockWidget*>& candidates)
{
    return candidates.size() >= 2;
}

constexpr DockAreaOperation operation{
    propertyName,
    "tabifyDockWidgetArea_%1",
    &isTabifyPossible,
    &TabifySupport::tabifyDockWidgets,
    {{
        {Qt::LeftDockWidgetArea, DockIcon::TabifyLeft,
         QT_TRANSLATE_NOOP("QMainWindowHelpers::TabifySupport", "Tabify docks on the left")},
        {Qt::RightDockWidgetArea, DockIcon::TabifyRight,
         QT_TRANSLATE_NOOP("QMainWindowHelpers::TabifySupport", "Tabify docks on the right")},
        {Qt::TopDockWidgetArea, DockIcon::TabifyTop,
         QT_TRANSLATE_NOOP("QMainWindowHelpers::TabifySupport", "Tabify docks at the top")},
        {Qt::BottomDockWidgetArea, DockIcon::TabifyBottom,
         QT_TRANSLATE_NOOP("QMainWindowHelpers::TabifySupport", "Tabify docks at the bottom")},
    }},
};

DockAreaSignals signalsOf(TabifySupport& support)
{
    using Support = TabifySupport;
    static constexpr std::array<void (Support::*)(bool), 4> inArea{
        &Support::isTabifyDockWidgetsPossibleInLeftDockWidgetAreaChanged,
        &Support::isTabifyDockWidgetsPossibleInRightDockWidgetAreaChanged,
        &Support::isTabifyDockWidgetsPossibleInTopDockWidgetAreaChanged,
        &Support::isTabifyDockWidgetsPossibleInBottomDockWidgetAreaChanged,
    };
    return {
        [&support](Qt::DockWidgetArea area, bool possible) {
            Q_EMIT support.isTabifyDockWidgetsPossibleChanged(area, possible);
        },
        [&support](std::size_t area, bool possible) {
            const auto send = inArea[area];
            Q_EMIT(support.*send)(possible);
        },
        [&support](Qt::DockWidgetArea area) { Q_EMIT support.dockWidgetsTabified(area); },
        [&support] { Q_EMIT support.dockWidgetsTabified(); },
    };
}

} // namespace

TabifySupport* TabifySupport::install(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas)
{
    TabifySupport* existing = get(mainWindow);
    return existing != nullptr ? existing : new TabifySupport(mainWindow, areas);
}

TabifySupport* TabifySupport::get(const QMainWindow& mainWindow)
{
    return AttachedHelpers::get<TabifySupport>(mainWindow, propertyName);
}

TabifySupport::TabifySupport(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas)
    : QObject(&mainWindow)
    , d(std::make_unique<DockAreaSupport>(*this, mainWindow, areas, operation, signalsOf(*this)))
{
    connect(&mainWindow, &QObject::destroyed, this, &TabifySupport::onMainWindowDestroyed);
    d->start(createDockWidgetAreaActionMap(areas, this));
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
    return d->isPossible(area);
}

QAction& TabifySupport::tabifyDockWidgetsAction(Qt::DockWidgetArea area) const
{
    return d->action(area);
}

QMainWindow* TabifySupport::mainWindow() const
{
    return d->mainWindow();
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
