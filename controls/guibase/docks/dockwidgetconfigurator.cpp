// SPDX-License-Identifier: MIT
#include "dockwidgetconfigurator.h"

#include "dockwidgethelpers.h"
#include "mainwindowhelpers.h"
#include "maximizeminimizesupport.h"
#include "updatesblocker.h"
#include "windowidentity_p.h"

#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>

#include <QAction>

#include <utility>

namespace QDockWidgetHelpers {

namespace {

using QMainWindowHelpers::AutoHideSupport;
using QMainWindowHelpers::TabifySupport;
using QMainWindowHelpers::TileSupport;

/// The support's action for each of its areas.
template <class Support>
void appendAreaActions(const Support* support,
                       QAction& (Support::*actionFor)(Qt::DockWidgetArea) const,
                       QList<QAction*>& actions)
{
    if (support == nullptr)
        return;
    // The areas are only read; the operation is not const although it changes nothing.
    const QList<Qt::DockWidgetArea> areas =
        QMainWindowHelpers::listDockWidgetAreas(const_cast<Support*>(support)->dockWidgetAreas());
    for (const Qt::DockWidgetArea area : areas)
        actions << &(support->*actionFor)(area);
}

} // namespace

DockWidgetConfigurator::DockWidgetConfigurator() = default;
DockWidgetConfigurator::DockWidgetConfigurator(const DockWidgetConfigurator& other) = default;
DockWidgetConfigurator&
DockWidgetConfigurator::operator=(const DockWidgetConfigurator& other) = default;
DockWidgetConfigurator::~DockWidgetConfigurator() = default;

DockWidgetConfigurator& DockWidgetConfigurator::includeActionsFrom(const QList<QAction*>* actions)
{
    m_actions = actions;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::includeActionsFrom(const TabifySupport* support)
{
    m_tabifySupport = support;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::includeActionsFrom(const TileSupport* support)
{
    m_tileSupport = support;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withAllowedAreas(QFlags<Qt::DockWidgetArea> areas)
{
    m_allowedAreas = areas;
    return *this;
}

DockWidgetConfigurator&
DockWidgetConfigurator::withFeatures(QFlags<QDockWidget::DockWidgetFeature> features)
{
    m_features = features;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withFocusPolicy(Qt::FocusPolicy policy)
{
    m_focusPolicy = policy;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withWindowFlags(QFlags<Qt::WindowType> flags)
{
    m_windowFlags = flags;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withStyleSheet(const QString& styleSheet)
{
    m_styleSheet = styleSheet;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withAutoHideSupport(bool enabled)
{
    m_autoHideSupport = enabled;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withMinimizeSupport(bool enabled)
{
    m_minimizeSupport = enabled;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withMaximizeSupport(bool enabled)
{
    m_maximizeSupport = enabled;
    return *this;
}

const DockWidgetConfigurator&
DockWidgetConfigurator::configure(QDockWidget& dockWidget, QList<QAction*>& actions,
                                  const QString& objectName, const QString& windowTitle,
                                  const QIcon& windowIcon, const QString& windowIconText) const
{
    const UpdatesBlocker blocker(dockWidget);
    applyWindowIdentity(dockWidget, objectName, windowTitle, windowIcon, windowIconText);
    applySettings(dockWidget);
    if (m_actions != nullptr)
        actions << *m_actions;
    if (m_autoHideSupport)
        actions << AutoHideSupport::createAutoHideAction(dockWidget);
    appendAreaActions(m_tabifySupport, &TabifySupport::tabifyDockWidgetsAction, actions);
    appendAreaActions(m_tileSupport, &TileSupport::tileDockWidgetsAction, actions);
    appendStateActions(dockWidget, actions);
    return *this;
}

const DockWidgetConfigurator& DockWidgetConfigurator::configure(QDockWidget& dockWidget,
                                                                const QString& objectName,
                                                                const QString& windowTitle,
                                                                const QIcon& windowIcon,
                                                                const QString& windowIconText) const
{
    QList<QAction*> actions;
    configure(dockWidget, actions, objectName, windowTitle, windowIcon, windowIconText);
    for (QAction* action : std::as_const(actions))
        if (action != nullptr)
            addActionToTitleBar(dockWidget, *action, 0);
    return *this;
}

void DockWidgetConfigurator::applySettings(QDockWidget& dockWidget) const
{
    if (m_allowedAreas)
        dockWidget.setAllowedAreas(*m_allowedAreas);
    if (m_features)
        dockWidget.setFeatures(*m_features);
    if (m_focusPolicy)
        dockWidget.setFocusPolicy(*m_focusPolicy);
    if (m_windowFlags)
        dockWidget.setWindowFlags(*m_windowFlags);
    if (!m_styleSheet.isNull())
        dockWidget.setStyleSheet(m_styleSheet);
}

void DockWidgetConfigurator::appendStateActions(QDockWidget& dockWidget,
                                                QList<QAction*>& actions) const
{
    if (!m_maximizeSupport && !m_minimizeSupport)
        return;
    const MaximizeMinimizeSupport* support = MaximizeMinimizeSupport::install(dockWidget);
    if (m_maximizeSupport)
        actions << &support->maximizeDockWidgetAction();
    if (m_minimizeSupport)
        actions << &support->minimizeDockWidgetAction();
    actions << &support->restoreDockWidgetAction();
}

} // namespace QDockWidgetHelpers
