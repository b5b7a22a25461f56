// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

class QWidget;

namespace PopupMotion {

/// Brings a pop-up to its place: at once and then visible when it is hidden, else by an animation
/// of half a second. The platform's wish for less motion is heeded.
void bring(QWidget& popup, const QPoint& position, double opacity);
/// Ends what is still moving, and hides the pop-up.
void hide(QWidget& popup);

} // namespace PopupMotion
