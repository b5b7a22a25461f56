// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <map>
#include <optional>

/// The text in which a record keeps the dock layouts of all modes.
///
/// "DG906NC44LjY=" followed by the Base64 form of the compressed stream of: the number of modes,
/// and for each, by ascending number, the mode number (both 32 bits) and the layout's text.
namespace StateRecord {

/// Dock layouts by mode number, as QMainWindow::saveState() gives them. In the text they are
/// hexadecimal.
using Layouts = std::map<quint32, QByteArray>;

struct Reading
{
    Layouts layouts;
    QList<quint32> damagedModes; ///< Their layouts are not hexadecimal, and left out.
};

/// Layouts that would go beyond one of the limits below are left out, those of the highest mode
/// numbers first.
QString encode(const Layouts& layouts);
/// Nothing for a text that encode() does not make: without the tag, damaged, or beyond one of the
/// limits below.
std::optional<Reading> decode(const QString& text);

inline constexpr quint32 maximumModes = 4096;
inline constexpr quint32 maximumBytes = 16U << 20;                     ///< Of the stream.
inline constexpr qsizetype maximumPackedBytes = qsizetype{256} * 1024; ///< When it is compressed.

} // namespace StateRecord
