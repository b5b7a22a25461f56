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

#include <optional>
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

struct DockWidgetConfigurator::Private : QSharedData
{
    const QList<QAction*>* actions = nullptr;
    const QMainWindowHelpers::TabifySupport* tabifySupport = nullptr;
    const QMainWindowHelpers::TileSupport* tileSupport = nullptr;
    std::optional<QFlags<Qt::DockWidgetArea>> allowedAreas;
    std::optional<QFlags<QDockWidget::DockWidgetFeature>> features;
    std::optional<Qt::FocusPolicy> focusPolicy;
    std::optional<QFlags<Qt::WindowType>> windowFlags;
    QString styleSheet;
    bool autoHideSupport = false;
    bool minimizeSupport = false;
    bool maximizeSupport = false;
};

DockWidgetConfigurator::DockWidgetConfigurator()
    : d(new Private)
{}

DockWidgetConfigurator::DockWidgetConfigurator(const DockWidgetConfigurator& other) = default;
DockWidgetConfigurator&
DockWidgetConfigurator::operator=(const DockWidgetConfigurator& other) = default;
DockWidgetConfigurator::~DockWidgetConfigurator() = default;

DockWidgetConfigurator& DockWidgetConfigurator::includeActionsFrom(const QList<QAction*>* actions)
{
    d->actions = actions;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::includeActionsFrom(const TabifySupport* support)
{
    d->tabifySupport = support;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::includeActionsFrom(const TileSupport* support)
{
    d->tileSupport = support;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withAllowedAreas(QFlags<Qt::DockWidgetArea> areas)
{
    d->allowedAreas = areas;
    return *this;
}

DockWidgetConfigurator&
DockWidgetConfigurator::withFeatures(QFlags<QDockWidget::DockWidgetFeature> features)
{
    d->features = features;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withFocusPolicy(Qt::FocusPolicy policy)
{
    d->focusPolicy = policy;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withWindowFlags(QFlags<Qt::WindowType> flags)
{
    d->windowFlags = flags;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withStyleSheet(const QString& styleSheet)
{
    d->styleSheet = styleSheet;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withAutoHideSupport(bool enabled)
{
    d->autoHideSupport = enabled;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withMinimizeSupport(bool enabled)
{
    d->minimizeSupport = enabled;
    return *this;
}

DockWidgetConfigurator& DockWidgetConfigurator::withMaximizeSupport(bool enabled)
{
    d->maximizeSupport = enabled;
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
    if (d->actions != nullptr)
        actions << *d->actions;
    if (d->autoHideSupport)
        actions << AutoHideSupport::createAutoHideAction(dockWidget);
    appendAreaActions(d->tabifySupport, &TabifySupport::tabifyDockWidgetsAction, actions);
    appendAreaActions(d->tileSupport, &TileSupport::tileDockWidgetsAction, actions);
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
    if (d->allowedAreas)
        dockWidget.setAllowedAreas(*d->allowedAreas);
    if (d->features)
        dockWidget.setFeatures(*d->features);
    if (d->focusPolicy)
        dockWidget.setFocusPolicy(*d->focusPolicy);
    if (d->windowFlags)
        dockWidget.setWindowFlags(*d->windowFlags);
    if (!d->styleSheet.isNull())
        dockWidget.setStyleSheet(d->styleSheet);
}

void DockWidgetConfigurator::appendStateActions(QDockWidget& dockWidget,
                                                QList<QAction*>& actions) const
{
    if (!d->maximizeSupport && !d->minimizeSupport)
        return;
    const MaximizeMinimizeSupport* support = MaximizeMinimizeSupport::install(dockWidget);
    if (d->maximizeSupport)
        actions << &support->maximizeDockWidgetAction();
    if (d->minimizeSupport)
        actions << &support->minimizeDockWidgetAction();
    actions << &support->restoreDockWidgetAction();
}

} // namespace QDockWidgetHelpers
