// SPDX-License-Identifier: MIT
#pragma once

class QDockWidget;
class QWidget;

namespace DockFocus {

/// The widget of the dock that takes the keys: the one that had the focus last, or the first that
/// can be reached by Tab, or the dock itself.
QWidget* target(QDockWidget& dock);
/// Whether the widget is the ancestor or lies in it, windows of its own included. Null is nowhere.
bool isInside(const QWidget* widget, const QWidget& ancestor);
/// Whether the dock lies behind another tab, where the toolkit keeps it visible but out of sight.
bool isCovered(const QDockWidget& dock);

} // namespace DockFocus
