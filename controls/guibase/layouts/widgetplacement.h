// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRect>
#include <QSize>

#include <optional>

class QString;
class QWidget;

/// Puts widgets where a stored geometry says.
namespace WidgetPlacement {

/// The bytes of the geometry in the hexadecimal text, or nothing when the text is none; for a
/// window also nothing when nobody could see it, being narrower or lower than `smallestWindow`.
std::optional<QByteArray> fromText(const QString& text, bool isWindow = false);

/// Applies what QWidget::saveGeometry() has given. Windows come back to the pixel where they were,
/// but always whole on a screen of today. Child widgets that a layout or a splitter places keep
/// their place. Where programs do not place windows, only sizes and states come back. Bytes that
/// are no geometry change nothing. Returns the size in pixels that the widget should get, now or
/// when its window manager has maximized it; none when nothing was done.
QSize apply(QWidget& widget, const QByteArray& bytes);

/// The geometry, moved and shrunk no more than needed for the window and the frame that it has now
/// to lie whole on a screen. Where programs do not place windows, only the size counts.
QRect reachableGeometry(const QRect& geometry, const QWidget& window);

/// Brings a visible window that the user can no longer take with the mouse back to a screen, as
/// after a change of the screens. Nothing for maximized ones, and where programs do not place
/// windows.
void makeReachable(QWidget& window);

inline constexpr int smallestWindow = 16; ///< In pixels.

} // namespace WidgetPlacement
