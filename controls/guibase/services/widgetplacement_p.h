// SPDX-License-Identifier: MIT
#pragma once

#include "geometryrecord_p.h"

#include <QSize>

class QString;
class QWidget;

/// Puts widgets where a stored geometry says.
namespace WidgetPlacement {

/// The bytes of the geometry in the hexadecimal text, or nothing when the text is no geometry.
QByteArray fromText(const QString& text);

/// Applies what QWidget::saveGeometry() has given. Windows come back to the pixel where they were,
/// but always whole on a screen of today. Child widgets that a layout or a splitter places keep
/// their place. Bytes that are no geometry change nothing.
void apply(QWidget& widget, const QByteArray& bytes);

} // namespace WidgetPlacement
