// SPDX-License-Identifier: MIT
#include "colorsetbuiltin.h"

#include "colorset.h"
#include "colorsetfactory_p.h"

#include <QCoreApplication>

#include <array>

namespace {

using enum IColorBase::ECOLOR;

constexpr std::array<const char*, 2> allNames{
    QT_TRANSLATE_NOOP("ColorSet", "*** Dark Desktop ***"),
    QT_TRANSLATE_NOOP("ColorSet", "*** Color Blind ***"),
};

struct Change
{
    IColorBase::ECOLOR slot;
    qint32 id;
};

// clang-format off
/// Dark axes, bars and captions with light texts; the draw panes are dark in every set.
constexpr Change darkDesktop[] = {
    {BarDisabled, 1042},
    {BarHoldMaximum, 1085},
    {FrequencyBarBackground, 1040},
    {FrequencyBarBackgroundHighlighted, 1031},
    {FrequencyBarInBandwidth, 1032},
    {FrequencyBarText, 1045},
    {CaptionBackgroundFocussed, 1018},
    {CaptionBackgroundNotFocussed, 1040},
    {CaptionTextNotFocussed, 1044},
    {BitStreamBelowThreshold, 1042},
    {BitStreamText, 1046},
    {BitStreamBackground, 1000},
    {RelativeBearingText, 1},
    {FrequencyAxisBackgroundHigh, 1041},
    {FrequencyAxisBackgroundLow, 1040},
    {FrequencyAxisText, 1046},
    {NewFrequencyBarBackgroundHigh, 1041},
    {NewFrequencyBarBackgroundLow, 1040},
    {NewFrequencyBarBackgroundInBandwidth, 1032},
    {NewFrequencyBarText, 1046},
    {YAxisText, 1046},
    {YAxisBackground, 1040},
};

/// Yellow, orange, sky blue, white and purple on black and grey.
constexpr Change colorBlind[] = {
    {DrawPaneBackgroundInBandwidth, 1016},
    {DrawPaneMaximumPoints, 1082},
    {DrawPaneSecondaryCurve, 1085},
    {DrawPaneSecondaryCurveFrozen, 1026},
    {DrawPaneLimitLine, 1082},
    {DrawPaneMinMaxHold, 1023},
    {DrawPaneReferenceCurve, 1015},
    {BarValue, 1021},
    {MarkerAdditionalRed, 1082},
    {MarkerAdditionalBlue, 1085},
    {MarkerAdditionalCyan, 1023},
    {MarkerMain, 1080},
    {MarkerMeasurement, 1015},
    {MarkerSecondary, 1086},
    {DetectionActivePen, 1085},
    {DetectionActiveBrush, 1016},
    {RelativeBearingStarboard, 1021},
    {RelativeBearingPortside, 1080},
    {PlannerRunning, 1021},
    {PlannerFailed, 1080},
    {PlannerAborted, 1050},
    {TrafficLightStop, 1080},
    {TrafficLightYield, 1066},
    {TrafficLightGo, 1021},
    {EyeDiagramCurve, 1085},
    {ProductionResultRunning, 1021},
    {ProductionResultInvalid, 1080},
};
// clang-format on

ColorSetCodec::Ids changed(std::span<const Change> changes)
{
    ColorSetCodec::Ids ids = ColorSetFactory::ids;
    for (const Change& change : changes)
        ids[static_cast<std::size_t>(change.slot)] = change.id;
    return ids;
}

} // namespace

std::span<const char* const> ColorSetBuiltIn::names()
{
    return allNames;
}

std::optional<ColorSetBuiltIn::Set> ColorSetBuiltIn::find(const QString& name)
{
    const auto isCalled = [&name](const char* each) {
        return name == QLatin1String(each) || name == QCoreApplication::translate("ColorSet", each);
    };
    if (isCalled(ColorSet::darkDesktopName))
        return Set{ColorSet::darkDesktopName, changed(darkDesktop)};
    if (isCalled(ColorSet::colorBlindName))
        return Set{ColorSet::colorBlindName, changed(colorBlind)};
    return std::nullopt;
}

QString ColorSetBuiltIn::shownName(const QString& name, bool isChanged)
{
    const QString shown = QCoreApplication::translate("ColorSet", name.toUtf8().constData());
    return isChanged ? shown + QCoreApplication::translate("ColorSet", " [changed]") : shown;
}
