// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <QRgb>
#include <QString>

#include <array>

namespace RadioPanes {

/// How levels become colours. Each map begins dark and ends bright.
enum class ColorMap {
    Even,     ///< Blue over green to yellow; equal steps of level are equal steps of lightness.
    Fire,     ///< Purple over red to yellow, as even.
    Gray,     ///< As even.
    ColorSet, ///< Through the colours of the draw pane in the application's colour set.
};
inline constexpr int colorMapCount = 4;

/// The colours of the levels from the lowest to the highest one.
using ColorRamp = std::array<QRgb, 256>;

/// Ask again after GuiBase::signalColorsChanged().
RADIOPANES_EXPORT ColorRamp colorRamp(ColorMap map);

/// The map as menus name it.
RADIOPANES_EXPORT QString colorMapName(ColorMap map);

} // namespace RadioPanes
