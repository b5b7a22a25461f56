// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QDockWidget;
class QWidget;

namespace bandmonitor {

class PanelDocks;

/// Ways for the keyboard between the centre of the window and its panels.
namespace PanelFocus {

/// Gives the focus to the next or the previous part of the window: centre, visible panels, centre
/// again. A panel behind another tab comes to the front.
void cycle(const PanelDocks& panels, QWidget& centre, bool forward);
/// Brings the panel to the front, and the keys to it.
void enter(const PanelDocks& panels, QDockWidget& dock, Qt::FocusReason reason);
/// The widget of the panel that takes the keys: the one that had them last, or the first that Tab
/// reaches; null without any.
QWidget* target(QWidget& panel);

} // namespace PanelFocus

} // namespace bandmonitor
