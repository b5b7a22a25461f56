// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <guibase/colors/icolorbase.h>

#include <QColor>
#include <QPalette>

#include <array>

namespace RadioPanes {

/// The slots of the application's colour set that the panes draw with.
namespace PaneSlot {
inline constexpr auto BackgroundLow = IColorBase::DrawPaneBackgroundLow;
inline constexpr auto BackgroundHigh = IColorBase::DrawPaneBackgroundHigh;
inline constexpr auto Grid = IColorBase::DrawPaneGrid;
inline constexpr auto Curve = IColorBase::DrawPaneMainCurve;
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

/// The colours of the levels from the lowest to the highest one.
using ColorRamp = std::array<QRgb, 256>;

/// A ramp through the colours of the draw pane: from its background over the hold and the main
/// curve to the colour of maximum points, from the darkest to the brightest of them.
RADIOPANES_EXPORT ColorRamp waterfallRamp();

} // namespace RadioPanes
