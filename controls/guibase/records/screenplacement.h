// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>

/// Where windows go whose stored place is not on the screens of today. All rectangles in pixels of
/// the desktop.
namespace ScreenPlacement {

/// The index of the area that shows most of the window or, when none does, of the nearest one; -1
/// without any area.
int homeOf(const QRect& window, const QList<QRect>& areas);
/// The window's rectangle, moved and shrunk no more than needed to lie whole in its home area. One
/// that is whole in all areas together stays as it is, and so does every one without any area.
QRect reachable(const QRect& window, const QList<QRect>& areas);

} // namespace ScreenPlacement
