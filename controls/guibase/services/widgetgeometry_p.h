// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Window geometries as records hold them: the hexadecimal text of QWidget::saveGeometry().
namespace WidgetGeometry {

/// The geometry in the text, or nothing when the text is no geometry: QWidget::restoreGeometry()
/// itself takes nearly any bytes, and places windows where they say.
QByteArray fromText(const QString& text);
QString toText(const QByteArray& geometry);

} // namespace WidgetGeometry
