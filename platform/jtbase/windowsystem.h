// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

/// What the window system lets a program do. The answers to the last two hold once there is a
/// QGuiApplication. The environment variable GUIBASE_PLACES_WINDOWS answers both instead: "0" with
/// no, as on Wayland, "1" with yes.
namespace WindowSystem {

/// Whether the desktop is a Wayland session, which X11 programs may be part of.
JTBASE_EXPORT bool isWaylandSession();

/// Whether programs put their windows where they like and move them. On Wayland only the compositor
/// does: positions are neither known nor obeyed, and a window may only take another size when the
/// compositor has answered its last change of state.
JTBASE_EXPORT bool placesWindows();

/// Whether QCursor::pos() is right when the mouse is outside the program's windows. On Wayland, and
/// for X11 programs within it, it stays where the mouse left them: what counts are enter and leave
/// events.
JTBASE_EXPORT bool tellsPointerEverywhere();

} // namespace WindowSystem
