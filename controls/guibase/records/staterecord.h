// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <map>
#include <optional>

/// The text in which a record keeps the dock layouts of all modes.
///
/// "DG906NC44LjY=" followed by the Base64 form of the compressed stream of: the number of modes,
/// and for each, by ascending number, the mode number (both 32 bits) and the layout's text.
namespace StateRecord {

/// Layout texts by mode number.
using Layouts = std::map<quint32, QString>;

/// Layouts that would go beyond one of the limits below are left out, those of the highest mode
/// numbers first.
QString encode(const Layouts& layouts);
/// Whether the text begins with the tag.
bool isTagged(const QString& text);
/// Nothing for a text that encode() does not make: without the tag, damaged, or beyond one of the
/// limits below.
std::optional<Layouts> decode(const QString& text);

inline constexpr quint32 maximumModes = 4096;
inline constexpr quint32 maximumBytes = 16U << 20;          ///< Of the stream.
inline constexpr qsizetype maximumPackedBytes = 256 * 1024; ///< When it is compressed.

} // namespace StateRecord
