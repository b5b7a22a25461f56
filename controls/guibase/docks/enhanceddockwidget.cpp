// SPDX-License-Identifier: MIT
#include "enhanceddockwidget.h"

#include "dockwidgethelpers.h"
#include "enhanceddockwidgettitlebar.h"
#include "maximizeminimizesupport.h"

#include <guibase/docks/autohide/autohidesupport.h>

#include <QAction>

using QDockWidgetHelpers::MaximizeMinimizeSupport;
using QMainWindowHelpers::AutoHideSupport;

EnhancedDockWidget::EnhancedDockWidget(QWidget* parent)
    : QDockWidget(parent)
{
    setTitleBarWidget(new EnhancedDockWidgetTitleBar(*this));
}

EnhancedDockWidget::~EnhancedDockWidget() = default;

bool EnhancedDockWidget::hasButton(const QAction* action) const
{
    const QWidget* const bar = titleBarWidget();
    return action != nullptr && bar != nullptr &&
           bar->actions().contains(const_cast<QAction*>(action));
}

void EnhancedDockWidget::setButton(QAction& action, bool on)
{
    if (hasButton(&action) == on)
        return;
    if (on)
        QDockWidgetHelpers::addActionToTitleBar(*this, action, 0);
    else
        titleBarWidget()->removeAction(&action);
}

bool EnhancedDockWidget::hasAutoHideButton() const
{
    return hasButton(AutoHideSupport::autoHideAction(*this));
}

void EnhancedDockWidget::setAutoHideButton(bool on)
{
    if (on == hasAutoHideButton())
        return;
    QAction* const action = AutoHideSupport::createAutoHideAction(*this);
    if (!on)
        action->setChecked(false); // it does not stay hidden without a way back
    setButton(*action, on);
}

bool EnhancedDockWidget::hasMaximizeButton() const
{
    const MaximizeMinimizeSupport* const support = MaximizeMinimizeSupport::get(*this);
    return support != nullptr && hasButton(&support->maximizeDockWidgetAction());
}

void EnhancedDockWidget::setMaximizeButton(bool on)
{
    if (on || hasMaximizeButton())
        setButton(MaximizeMinimizeSupport::install(*this)->maximizeDockWidgetAction(), on);
    updateRestoreButton();
}

bool EnhancedDockWidget::hasMinimizeButton() const
{
    const MaximizeMinimizeSupport* const support = MaximizeMinimizeSupport::get(*this);
    return support != nullptr && hasButton(&support->minimizeDockWidgetAction());
}

void EnhancedDockWidget::setMinimizeButton(bool on)
{
    if (on || hasMinimizeButton())
        setButton(MaximizeMinimizeSupport::install(*this)->minimizeDockWidgetAction(), on);
    updateRestoreButton();
}

void EnhancedDockWidget::updateRestoreButton()
{
    if (const MaximizeMinimizeSupport* const support = MaximizeMinimizeSupport::get(*this))
        setButton(support->restoreDockWidgetAction(), hasMaximizeButton() || hasMinimizeButton());
}
