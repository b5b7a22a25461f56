// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>

/// Finds places on the present screens for windows whose stored place may be off them. All
/// rectangles are in pixels of the desktop.
namespace ScreenPlacement {

/// The index of the area that shows most of the window or, when none does, of the nearest one; -1
/// without any area.
int homeOf(const QRect& window, const QList<QRect>& areas);
/// The window's rectangle, moved and shrunk just enough to fit into its home area. It stays as it
/// is when the areas together cover it, and when there are no areas.
QRect reachable(const QRect& window, const QList<QRect>& areas);

/// Whether the user can take the window, with its frame, by its upper edge: enough of that is in
/// one of the areas. True without any areas.
bool isReachable(const QRect& window, const QList<QRect>& areas);

} // namespace ScreenPlacement
