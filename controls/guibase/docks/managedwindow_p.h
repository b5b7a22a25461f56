// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QSize>

/// The window of a floating dock, as window managers see it.
namespace ManagedWindow {

/// Makes the window one that may be maximized and minimized, which many X11 window managers do not
/// do with the tool windows that docks are. It stays above its main window. To be called whenever
/// the dock is about to be shown; nothing for a dock that is docked, and on other systems.
void allowStates(QDockWidget& dock);

/// Whether the window is not maximized or minimized although the toolkit believes so, some time
/// after the window manager was asked. `normalSize` is the dock's size before that. Nobody tells
/// that a window is minimized where programs do not place windows; there the answer is true.
bool hasRefusedState(const QDockWidget& dock, const QSize& normalSize);

} // namespace ManagedWindow
