// SPDX-License-Identifier: MIT
// The members of MaximizeMinimizeSupport that work on any dock, and need no support.
#include "maximizeminimizesupport.h"

#include "edgehiding.h"

#include <QDockWidget>

namespace QDockWidgetHelpers {

using State = MaximizeMinimizeSupport_DockWidgetState;

State::Type MaximizeMinimizeSupport::dockWidgetState(const QDockWidget& dock)
{
    if (dock.isMinimized())
        return State::Minimized;
    return dock.isMaximized() ? State::Maximized : State::Normal;
}

bool MaximizeMinimizeSupport::isMaximizeDockWidgetPossible(const QDockWidget& dock)
{
    return dock.isFloating() && !dock.isMaximized() && !EdgeHiding::isOn(dock);
}

bool MaximizeMinimizeSupport::isMinimizeDockWidgetPossible(const QDockWidget& dock)
{
    return dock.isFloating() && !dock.isMinimized() && !EdgeHiding::isOn(dock);
}

bool MaximizeMinimizeSupport::isRestoreDockWidgetPossible(const QDockWidget& dock)
{
    return dock.isFloating() && (dock.isMinimized() || dock.isMaximized());
}

bool MaximizeMinimizeSupport::maximizeDockWidget(QDockWidget& dock)
{
    if (!isMaximizeDockWidgetPossible(dock))
        return false;
    dock.showMaximized();
    return true;
}

bool MaximizeMinimizeSupport::minimizeDockWidget(QDockWidget& dock)
{
    if (!isMinimizeDockWidgetPossible(dock))
        return false;
    dock.showMinimized();
    return true;
}

bool MaximizeMinimizeSupport::restoreDockWidget(QDockWidget& dock)
{
    if (!isRestoreDockWidgetPossible(dock))
        return false;
    dock.showNormal();
    return true;
}

bool MaximizeMinimizeSupport::maximizeWhenShown(QDockWidget& dock)
{
    if (dock.isVisible() || !isMaximizeDockWidgetPossible(dock))
        return false;
    dock.setWindowState(dock.windowState() | Qt::WindowMaximized);
    return true;
}

} // namespace QDockWidgetHelpers
