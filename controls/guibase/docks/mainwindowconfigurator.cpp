// SPDX-License-Identifier: MIT
#include "mainwindowconfigurator.h"

#include "covereddocks.h"
#include "mainwindowhelpers.h"
#include "windowidentity_p.h"

#include <guibase/docks/active/activedockwidgetsupport.h>
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>

#include <QMap>

#include <optional>

namespace QMainWindowHelpers {

namespace {

template <class Support, class Areas>
void installFor(QMainWindow& mainWindow, const std::optional<Areas>& areas)
{
    if (areas && *areas != Areas())
        Support::install(mainWindow, *areas);
}

} // namespace

struct MainWindowConfigurator::Private : QSharedData
{
    bool activeDockWidgetSupport = false;
    std::optional<QFlags<Qt::ToolBarArea>> autoHideAreas;
    std::optional<QFlags<QMainWindow::DockOption>> dockOptions;
    std::optional<bool> documentMode;
    std::optional<QFlags<Qt::DockWidgetArea>> tabifyAreas;
    QMap<Qt::DockWidgetArea, QTabWidget::TabPosition> tabPositions;
    std::optional<QTabWidget::TabShape> tabShape;
    std::optional<QFlags<Qt::DockWidgetArea>> tileAreas;
};

MainWindowConfigurator::MainWindowConfigurator()
    : d(new Private)
{}

MainWindowConfigurator::MainWindowConfigurator(const MainWindowConfigurator& other) = default;
MainWindowConfigurator&
MainWindowConfigurator::operator=(const MainWindowConfigurator& other) = default;
MainWindowConfigurator::~MainWindowConfigurator() = default;

MainWindowConfigurator& MainWindowConfigurator::withActiveDockWidgetSupport(bool enabled)
{
    d->activeDockWidgetSupport = enabled;
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withAutoHideSupport(QFlags<Qt::ToolBarArea> areas)
{
    d->autoHideAreas = areas;
    return *this;
}

MainWindowConfigurator&
MainWindowConfigurator::withDockOptions(QFlags<QMainWindow::DockOption> options)
{
    d->dockOptions = options;
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withDocumentMode(bool enabled)
{
    d->documentMode = enabled;
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withTabifySupport(QFlags<Qt::DockWidgetArea> areas)
{
    d->tabifyAreas = areas;
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withTabPosition(QFlags<Qt::DockWidgetArea> areas,
                                                                QTabWidget::TabPosition position)
{
    const QList<Qt::DockWidgetArea> singleAreas = listDockWidgetAreas(areas);
    for (const Qt::DockWidgetArea area : singleAreas)
        d->tabPositions.insert(area, position);
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withTabShape(QTabWidget::TabShape shape)
{
    d->tabShape = shape;
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withTileSupport(QFlags<Qt::DockWidgetArea> areas)
{
    d->tileAreas = areas;
    return *this;
}

const MainWindowConfigurator& MainWindowConfigurator::configure(QMainWindow& mainWindow,
                                                                const QString& objectName,
                                                                const QString& windowTitle,
                                                                const QIcon& windowIcon,
                                                                const QString& windowIconText) const
{
    applyWindowIdentity(mainWindow, objectName, windowTitle, windowIcon, windowIconText);
    if (d->dockOptions)
        mainWindow.setDockOptions(*d->dockOptions);
    if (d->documentMode)
        mainWindow.setDocumentMode(*d->documentMode);
    for (auto entry = d->tabPositions.cbegin(); entry != d->tabPositions.cend(); ++entry)
        mainWindow.setTabPosition(entry.key(), entry.value());
    if (d->tabShape)
        mainWindow.setTabShape(*d->tabShape);
    CoveredDocks::install(mainWindow);
    if (d->activeDockWidgetSupport)
        ActiveDockWidgetSupport::install(mainWindow);
    installFor<AutoHideSupport>(mainWindow, d->autoHideAreas);
    installFor<TabifySupport>(mainWindow, d->tabifyAreas);
    installFor<TileSupport>(mainWindow, d->tileAreas);
    return *this;
}

} // namespace QMainWindowHelpers
