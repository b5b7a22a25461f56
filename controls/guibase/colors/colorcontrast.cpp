// SPDX-License-Identifier: MIT
#include "colorcontrast.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

using enum IColorBase::ECOLOR;

struct Drawn
{
    IColorBase::ECOLOR slot;
    IColorBase::ECOLOR on;
    IColorBase::ECOLOR alsoOn; ///< The other end of a gradient, or the same again.
};

// clang-format off
constexpr Drawn drawn[] = {
    {AxisText, Slot66, Slot66},
    {FrequencyAxisText, FrequencyAxisBackgroundHigh, FrequencyAxisBackgroundLow},
    {YAxisText, YAxisBackground, YAxisBackground},
    {DrawPaneResultPanelText, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {DrawPaneMinimumPoints, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {DrawPaneMaximumPoints, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {DrawPaneMainCurve, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {DrawPaneMainCurveFrozen, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {DrawPaneSecondaryCurve, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {DrawPaneSecondaryCurveFrozen, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {DrawPaneLimitLine, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {DrawPaneMinMaxHold, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {DrawPaneReferenceCurve, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {MarkerAdditionalRed, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {MarkerAdditionalBlue, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {MarkerAdditionalCyan, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {MarkerMain, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {MarkerAdditionalFrequency, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {MarkerSecondary, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {MarkerMeasurement, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {MarkerMeasurementCentered, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {MarkerGrayed, DrawPaneBackgroundLow, DrawPaneBackgroundHigh},
    {CaptionTextFocussed, CaptionBackgroundFocussed, CaptionBackgroundFocussed},
    {CaptionTextHighlighted, CaptionBackgroundFocussed, CaptionBackgroundFocussed},
    {CaptionTextNotFocussed, CaptionBackgroundNotFocussed, CaptionBackgroundNotFocussed},
    {FrequencyBarText, FrequencyBarBackground, FrequencyBarBackgroundHighlighted},
    {NewFrequencyBarText, NewFrequencyBarBackgroundHigh, NewFrequencyBarBackgroundLow},
    {BitStreamText, BitStreamBackground, BitStreamBackground},
    {DetectionActivePen, DetectionBackground, DetectionBackground},
    {DetectionInactivePen, DetectionBackground, DetectionBackground},
    {DetectionCurrentPen, DetectionBackground, DetectionBackground},
    {RelativeBearingText, Slot66, Slot66},
    {TimeDiagramMainCurve, TimeDiagramBackgroundHigh, TimeDiagramBackgroundLow},
    {TimeDiagramSecondaryCurve, TimeDiagramBackgroundHigh, TimeDiagramBackgroundLow},
    {EyeDiagramCurve, EyeDiagramBackgroundHigh, EyeDiagramBackgroundLow},
    {IQDiagramCurve, IQDiagramBackgroundHigh, IQDiagramBackgroundLow},
};
// clang-format on

constexpr double highest = 21; // black on white

/// WCAG 2.1, "relative luminance".
double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    const QColor rgb = color.toRgb();
    return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) +
           0.0722 * linear(rgb.blueF());
}

} // namespace

double ColorContrast::ratio(const QColor& foreground, const QColor& background)
{
    const auto [darker, lighter] = std::minmax({luminance(foreground), luminance(background)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor ColorContrast::blackOrWhiteOn(std::initializer_list<QColor> backgrounds)
{
    const auto weakest = [&](const QColor& color) {
        double result = highest;
        for (const QColor& background : backgrounds)
            result = std::min(result, ratio(color, background));
        return result;
    };
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return weakest(black) >= weakest(white) ? black : white;
}

std::optional<double> ColorContrast::ratioOf(IColorBase::ECOLOR slot,
                                             const std::function<QColor(IColorBase::ECOLOR)>& color)
{
    const auto* row = std::find_if(std::begin(drawn), std::end(drawn),
                                   [slot](const Drawn& each) { return each.slot == slot; });
    if (row == std::end(drawn))
        return std::nullopt;
    const QColor own = color(slot);
    return std::min(ratio(own, color(row->on)), ratio(own, color(row->alsoOn)));
}

QColor ColorContrast::placeholder(const QPalette& palette)
{
    const QColor own = palette.color(QPalette::PlaceholderText);
    if (ratio(own, palette.color(QPalette::Base)) >= lowest)
        return own;
    QColor color = palette.color(QPalette::Text);
    constexpr int halfTransparent = 128;
    color.setAlpha(halfTransparent);
    return color;
}
