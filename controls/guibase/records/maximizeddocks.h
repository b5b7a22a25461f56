// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>

#include <map>
#include <optional>

/// The floating docks of a main window that are maximized, by object name: where they go when they
/// are restored, in pixels of the desktop, without the frame. A dock layout does not tell.
using MaximizedDocks = std::map<QString, QRect>;

/// Those of all modes as text: "0,300,260,222,188,41;" holds the place 300, 260 of the size 222 by
/// 188 for the dock "A" (its name in hexadecimal UTF-8) in mode 0.
namespace MaximizedDocksText {

using Modes = std::map<quint32, MaximizedDocks>;

QString format(const Modes& modes);
/// Nothing for a text with anything but such rows, without an area, or with an edge further away
/// than a GeometryRecord may have.
std::optional<Modes> parse(const QString& text);

inline constexpr qsizetype maximumTextSize = 1 << 20;

} // namespace MaximizedDocksText
