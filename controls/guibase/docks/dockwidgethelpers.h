// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

class QAction;
class QDockWidget;
class QWidget;

namespace QDockWidgetHelpers {

/// Wraps the widget into a new dock that takes over its parent, window flags, focus policy, style
/// sheet, window title and icon; the dock's object name is the widget's with "_outerDockWidget"
/// behind it, or null. The caller adds the dock, which belongs to the widget's former parent (to
/// the caller without one), to a main window. A dock is returned as it is.
GUIBASE_EXPORT QDockWidget* makeDockWidgetFrom(QWidget& widget);

/// Shows the action as a button in the dock's title bar; see
/// EnhancedDockWidgetTitleBar::addTitleBarAction(). A title bar of another class is replaced, and
/// remains as a hidden child of the dock.
GUIBASE_EXPORT void addActionToTitleBar(QDockWidget& dockWidget, QAction& action, int index);

} // namespace QDockWidgetHelpers
