// SPDX-License-Identifier: MIT
#include "mainwindowconfigurator.h"

#include "covereddocks.h"
#include "mainwindowhelpers.h"
#include "windowidentity_p.h"

#include <guibase/docks/active/activedockwidgetsupport.h>
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>

namespace QMainWindowHelpers {

namespace {

template <class Support, class Areas>
void installFor(QMainWindow& mainWindow, const std::optional<Areas>& areas)
{
    if (areas && *areas != Areas())
        Support::install(mainWindow, *areas);
}

} // namespace

MainWindowConfigurator::MainWindowConfigurator() = default;
MainWindowConfigurator::MainWindowConfigurator(const MainWindowConfigurator& other) = default;
MainWindowConfigurator&
MainWindowConfigurator::operator=(const MainWindowConfigurator& other) = default;
MainWindowConfigurator::~MainWindowConfigurator() = default;

MainWindowConfigurator& MainWindowConfigurator::withActiveDockWidgetSupport(bool enabled)
{
    m_activeDockWidgetSupport = enabled;
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withAutoHideSupport(QFlags<Qt::ToolBarArea> areas)
{
    m_autoHideAreas = areas;
    return *this;
}

MainWindowConfigurator&
MainWindowConfigurator::withDockOptions(QFlags<QMainWindow::DockOption> options)
{
    m_dockOptions = options;
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withDocumentMode(bool enabled)
{
    m_documentMode = enabled;
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withTabifySupport(QFlags<Qt::DockWidgetArea> areas)
{
    m_tabifyAreas = areas;
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withTabPosition(QFlags<Qt::DockWidgetArea> areas,
                                                                QTabWidget::TabPosition position)
{
    const QList<Qt::DockWidgetArea> singleAreas = listDockWidgetAreas(areas);
    for (const Qt::DockWidgetArea area : singleAreas)
        m_tabPositions.insert(area, position);
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withTabShape(QTabWidget::TabShape shape)
{
    m_tabShape = shape;
    return *this;
}

MainWindowConfigurator& MainWindowConfigurator::withTileSupport(QFlags<Qt::DockWidgetArea> areas)
{
    m_tileAreas = areas;
    return *this;
}

const MainWindowConfigurator& MainWindowConfigurator::configure(QMainWindow& mainWindow,
                                                                const QString& objectName,
                                                                const QString& windowTitle,
                                                                const QIcon& windowIcon,
                                                                const QString& windowIconText) const
{
    applyWindowIdentity(mainWindow, objectName, windowTitle, windowIcon, windowIconText);
    if (m_dockOptions)
        mainWindow.setDockOptions(*m_dockOptions);
    if (m_documentMode)
        mainWindow.setDocumentMode(*m_documentMode);
    for (auto entry = m_tabPositions.cbegin(); entry != m_tabPositions.cend(); ++entry)
        mainWindow.setTabPosition(entry.key(), entry.value());
    if (m_tabShape)
        mainWindow.setTabShape(*m_tabShape);
    CoveredDocks::install(mainWindow);
    if (m_activeDockWidgetSupport)
        ActiveDockWidgetSupport::install(mainWindow);
    installFor<AutoHideSupport>(mainWindow, m_autoHideAreas);
    installFor<TabifySupport>(mainWindow, m_tabifyAreas);
    installFor<TileSupport>(mainWindow, m_tileAreas);
    return *this;
}

} // namespace QMainWindowHelpers
