// SPDX-License-Identifier: MIT
#pragma once

#include "contextmenuhandler.h"

/// Where context menus open in the toolkit's widgets, and what these bring along.
namespace ContextMenuPlace {

/// The request for a click into the widget; of a scroll area, into its viewport.
ContextMenuRequest at(QWidget& widget, const QPoint& position);
/// The request for a key in the widget that has the focus. Brings the current item into view.
ContextMenuRequest byKeyboard(QWidget& widget);
/// What the positions of requests for the widget are relative to: itself, or its viewport.
QWidget& surface(QWidget& widget);
/// The entries of a text that can be edited, such as "Paste"; null for other widgets.
std::unique_ptr<QMenu> ownMenu(QWidget& widget);

} // namespace ContextMenuPlace
