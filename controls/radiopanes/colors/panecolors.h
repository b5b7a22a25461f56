// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <guibase/colors/icolorbase.h>

#include <QColor>
#include <QPalette>

namespace RadioPanes {

/// The slots of the application's colour set that the panes draw with.
namespace PaneSlot {
/// The slots of the colour set, by what the panes draw with them.
inline constexpr auto BackgroundLow = IColorBase::DrawPaneBackgroundLow;
inline constexpr auto BackgroundHigh = IColorBase::DrawPaneBackgroundHigh;
inline constexpr auto Grid = IColorBase::DrawPaneGrid;
inline constexpr auto Curve = IColorBase::DrawPaneMainCurve;
inline constexpr auto Average = IColorBase::DrawPaneSecondaryCurve;
inline constexpr auto HoldMinimum = IColorBase::DrawPaneMinimumPoints;
inline constexpr auto Hold = IColorBase::DrawPaneMainCurveMaximumShadow;
inline constexpr auto ReadOut = IColorBase::DrawPaneResultPanelText;
inline constexpr auto Cursor = IColorBase::MarkerMain;
inline constexpr auto Pin = IColorBase::MarkerMeasurement;
inline constexpr auto Peak = IColorBase::DrawPaneMaximumPoints;
inline constexpr auto ReferenceLine = IColorBase::DrawPaneLimitLine;
inline constexpr auto ReferencePoint = IColorBase::DrawPaneReferenceCurve;
inline constexpr auto FrequencyAxisHigh = IColorBase::FrequencyAxisBackgroundHigh;
inline constexpr auto FrequencyAxisLow = IColorBase::FrequencyAxisBackgroundLow;
inline constexpr auto FrequencyAxisText = IColorBase::FrequencyAxisText;
inline constexpr auto LevelAxisText = IColorBase::YAxisText;
inline constexpr auto LevelAxisBackground = IColorBase::YAxisBackground;
} // namespace PaneSlot

/// The colour that the slot has now. Ask again after GuiBase::signalColorsChanged().
RADIOPANES_EXPORT QColor paneColor(IColorBase::ECOLOR slot);

/// The colour that the axis slot has now. As long as the user has chosen no colours, axes in a dark
/// palette have the colours of the palette: the factory colours are light.
RADIOPANES_EXPORT QColor axisColor(IColorBase::ECOLOR slot, const QPalette& palette);

/// The slot of a signal type, 'a' to 'q'; that of 'a' for any other letter.
RADIOPANES_EXPORT IColorBase::ECOLOR signalTypeSlot(char letter);

} // namespace RadioPanes
