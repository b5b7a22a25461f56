// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QAction;
class QDockWidget;

/// Actions that concern the docks of one area. All docks share them; a title bar shows those of the
/// area where its dock stands.
namespace AreaAction {

void setArea(QAction& action, Qt::DockWidgetArea area);
/// NoDockWidgetArea for an action that does not belong to an area.
Qt::DockWidgetArea areaOf(const QAction& action);
/// Where the dock lies docked; NoDockWidgetArea for a floating one and for one without window.
Qt::DockWidgetArea areaOf(const QDockWidget& dock);

} // namespace AreaAction
