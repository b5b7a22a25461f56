// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>

class QMouseEvent;

/// The thin frame of a floating dock, by which the user resizes it. Where programs place their
/// windows the toolkit does that.
namespace DockFrame {

/// Has the window system resize the dock by the edge or corner that the mouse has pressed, where
/// programs cannot do it themselves. True when it does; then the event is done with. Otherwise
/// false: the dock is docked or maximized, or the press is elsewhere.
bool beginResize(const QDockWidget& dock, const QMouseEvent& event);

} // namespace DockFrame
