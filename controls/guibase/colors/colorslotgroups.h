// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/icolorbase.h>

#include <QCoreApplication>

#include <array>
#include <span>

/// One row of the colour editor. The texts are to be translated in the context "ColorsCtrl".
struct ColorSlotRow
{
    static constexpr int noSlot = -1;

    int slot;         ///< The slot that the row edits, noSlot for a row that only tells something.
    const char* text; ///< Null: the row has the name of the slot's signal type.
    const char* note; ///< What a row without slot tells, null for all others.
};

/// A group of rows of the colour editor.
struct ColorSlotGroup
{
    const char* heading; ///< To be translated in the context "ColorsCtrl".
    quint32 maskBit;     ///< In ColorSet::GetShowInDialog(); 0 for a group that is always shown.
    std::span<const ColorSlotRow> rows;

    constexpr bool isShown(quint32 mask) const { return maskBit == 0 || (mask & maskBit) != 0; }
};

/// The rows of the colour editor; they fix what each slot of the colour set means.
namespace ColorSlotGroups {

// clang-format off
inline constexpr ColorSlotRow axisRows[] = {
    {ColorSlotRow::noSlot, QT_TRANSLATE_NOOP("ColorsCtrl", "Background"),
     QT_TRANSLATE_NOOP("ColorsCtrl", "Fixed to System Background")},
    {IColorBase::AxisText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text"), nullptr},
    {IColorBase::AxisOutOfZoom, QT_TRANSLATE_NOOP("ColorsCtrl", "Out of Zoom"), nullptr},
};

inline constexpr ColorSlotRow frequencyAxisRows[] = {
    {IColorBase::FrequencyAxisBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Hi"), nullptr},
    {IColorBase::FrequencyAxisBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Lo"), nullptr},
    {IColorBase::FrequencyAxisText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text"), nullptr},
};

inline constexpr ColorSlotRow yAxisRows[] = {
    {IColorBase::YAxisText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text"), nullptr},
    {IColorBase::YAxisBackground, QT_TRANSLATE_NOOP("ColorsCtrl", "Background"), nullptr},
};

inline constexpr ColorSlotRow drawPaneRows[] = {
    {IColorBase::DrawPaneBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "Background (low)"), nullptr},
    {IColorBase::DrawPaneBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "Background (high)"), nullptr},
    {IColorBase::DrawPaneBackgroundInBandwidth, QT_TRANSLATE_NOOP("ColorsCtrl", "Background in Bandwidth"), nullptr},
    {IColorBase::DrawPaneBackgroundInAudioBandwidth, QT_TRANSLATE_NOOP("ColorsCtrl", "Background in Audio Bandwidth"), nullptr},
    {IColorBase::DrawPaneBackgroundInJob, QT_TRANSLATE_NOOP("ColorsCtrl", "Background in Job"), nullptr},
    {IColorBase::DrawPaneBackgroundOutOfJob, QT_TRANSLATE_NOOP("ColorsCtrl", "Background out of Job"), nullptr},
    {IColorBase::DrawPaneResultPanelText, QT_TRANSLATE_NOOP("ColorsCtrl", "Result Panel Text"), nullptr},
    {IColorBase::DrawPaneMinimumPoints, QT_TRANSLATE_NOOP("ColorsCtrl", "Minimum Points"), nullptr},
    {IColorBase::DrawPaneMaximumPoints, QT_TRANSLATE_NOOP("ColorsCtrl", "Maximum Points"), nullptr},
    {IColorBase::DrawPaneMainCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Main Curve"), nullptr},
    {IColorBase::DrawPaneMainCurveMaximumShadow, QT_TRANSLATE_NOOP("ColorsCtrl", "Main Curve Maximum Shadow"), nullptr},
    {IColorBase::DrawPaneMainCurveFrozen, QT_TRANSLATE_NOOP("ColorsCtrl", "Main Curve - Frozen"), nullptr},
    {IColorBase::DrawPaneMainCurveMaximumShadowFrozen, QT_TRANSLATE_NOOP("ColorsCtrl", "Main Curve Maximum Shadow - Frozen"), nullptr},
    {IColorBase::DrawPaneSecondaryCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Secondary Curve"), nullptr},
    {IColorBase::DrawPaneSecondaryCurveFrozen, QT_TRANSLATE_NOOP("ColorsCtrl", "Secondary Curve - Frozen"), nullptr},
    {IColorBase::DrawPaneFilteredBackground, QT_TRANSLATE_NOOP("ColorsCtrl", "Filtered Background"), nullptr},
    {IColorBase::DrawPaneBackgroundWithoutKFactors, QT_TRANSLATE_NOOP("ColorsCtrl", "Background, where no KFactors available"), nullptr},
    {IColorBase::DrawPaneGrid, QT_TRANSLATE_NOOP("ColorsCtrl", "Grid"), nullptr},
};

inline constexpr ColorSlotRow barRows[] = {
    {IColorBase::BarValue, QT_TRANSLATE_NOOP("ColorsCtrl", "Value"), nullptr},
    {IColorBase::BarDisabled, QT_TRANSLATE_NOOP("ColorsCtrl", "Disabled"), nullptr},
    {ColorSlotRow::noSlot, QT_TRANSLATE_NOOP("ColorsCtrl", "Text"),
     QT_TRANSLATE_NOOP("ColorsCtrl", "Color is calculated from background to black or white")},
    {IColorBase::BarOverload0, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 0"), nullptr},
    {IColorBase::BarOverload1, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 1"), nullptr},
    {IColorBase::BarOverload2, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 2"), nullptr},
    {IColorBase::BarOverload3, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 3"), nullptr},
    {IColorBase::BarOverload4, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 4"), nullptr},
    {IColorBase::BarOverload5, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 5"), nullptr},
    {IColorBase::BarOverload6, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 6"), nullptr},
    {IColorBase::BarOverload7, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 7"), nullptr},
    {IColorBase::BarOverload8, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 8"), nullptr},
    {IColorBase::BarOverload9, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 9"), nullptr},
    {IColorBase::BarHoldMaximum, QT_TRANSLATE_NOOP("ColorsCtrl", "Hold Maximum"), nullptr},
};

inline constexpr ColorSlotRow markerRows[] = {
    {IColorBase::MarkerAdditionalRed, QT_TRANSLATE_NOOP("ColorsCtrl", "Additional (Red)"), nullptr},
    {IColorBase::MarkerAdditionalBlue, QT_TRANSLATE_NOOP("ColorsCtrl", "Additional (Blue)"), nullptr},
    {IColorBase::MarkerAdditionalCyan, QT_TRANSLATE_NOOP("ColorsCtrl", "Additional (Cyan)"), nullptr},
    {IColorBase::MarkerMain, QT_TRANSLATE_NOOP("ColorsCtrl", "Main (Frequency)"), nullptr},
    {IColorBase::MarkerAdditionalFrequency, QT_TRANSLATE_NOOP("ColorsCtrl", "Additional Frequency"), nullptr},
    {IColorBase::MarkerSecondary, QT_TRANSLATE_NOOP("ColorsCtrl", "Secondary (Threshold)"), nullptr},
    {IColorBase::MarkerMeasurement, QT_TRANSLATE_NOOP("ColorsCtrl", "Measurement"), nullptr},
    {IColorBase::MarkerMeasurementCentered, QT_TRANSLATE_NOOP("ColorsCtrl", "Measurement - Centered"), nullptr},
    {IColorBase::MarkerGrayed, QT_TRANSLATE_NOOP("ColorsCtrl", "Grayed"), nullptr},
};

inline constexpr ColorSlotRow captionRows[] = {
    {IColorBase::CaptionBackgroundFocussed, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Focussed"), nullptr},
    {IColorBase::CaptionTextFocussed, QT_TRANSLATE_NOOP("ColorsCtrl", "Focussed Text"), nullptr},
    {IColorBase::CaptionBackgroundNotFocussed, QT_TRANSLATE_NOOP("ColorsCtrl", "Background not Focussed"), nullptr},
    {IColorBase::CaptionTextNotFocussed, QT_TRANSLATE_NOOP("ColorsCtrl", "Not Focussed Text"), nullptr},
    {IColorBase::CaptionTextHighlighted, QT_TRANSLATE_NOOP("ColorsCtrl", "Highlighted Focussed Text"), nullptr},
};

inline constexpr ColorSlotRow signalTypeRows[] = {
    {IColorBase::SignalTypeA, nullptr, nullptr},
    {IColorBase::SignalTypeB, nullptr, nullptr},
    {IColorBase::SignalTypeC, nullptr, nullptr},
    {IColorBase::SignalTypeD, nullptr, nullptr},
    {IColorBase::SignalTypeE, nullptr, nullptr},
    {IColorBase::SignalTypeF, nullptr, nullptr},
    {IColorBase::SignalTypeG, nullptr, nullptr},
    {IColorBase::SignalTypeH, nullptr, nullptr},
    {IColorBase::SignalTypeI, nullptr, nullptr},
    {IColorBase::SignalTypeJ, nullptr, nullptr},
    {IColorBase::SignalTypeK, nullptr, nullptr},
    {IColorBase::SignalTypeL, nullptr, nullptr},
    {IColorBase::SignalTypeM, nullptr, nullptr},
    {IColorBase::SignalTypeN, nullptr, nullptr},
    {IColorBase::SignalTypeO, nullptr, nullptr},
    {IColorBase::SignalTypeP, nullptr, nullptr},
    {IColorBase::SignalTypeQ, nullptr, nullptr},
};

inline constexpr ColorSlotRow jobFrameRows[] = {
    {IColorBase::JobFrameHighBorder, QT_TRANSLATE_NOOP("ColorsCtrl", "High Border"), nullptr},
    {IColorBase::JobFrameLowBorder, QT_TRANSLATE_NOOP("ColorsCtrl", "Low Border"), nullptr},
    {IColorBase::JobFrameInside, QT_TRANSLATE_NOOP("ColorsCtrl", "Inside"), nullptr},
};

inline constexpr ColorSlotRow frequencyBarRows[] = {
    {IColorBase::FrequencyBarBackground, QT_TRANSLATE_NOOP("ColorsCtrl", "Background"), nullptr},
    {IColorBase::FrequencyBarBackgroundHighlighted, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Highlighted"), nullptr},
    {IColorBase::FrequencyBarInBandwidth, QT_TRANSLATE_NOOP("ColorsCtrl", "in Bandwidth"), nullptr},
    {IColorBase::FrequencyBarText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text"), nullptr},
    {IColorBase::FrequencyBarLocalSuppress, QT_TRANSLATE_NOOP("ColorsCtrl", "Local Suppress"), nullptr},
    {IColorBase::FrequencyBarGlobalSuppress, QT_TRANSLATE_NOOP("ColorsCtrl", "Global Suppress"), nullptr},
};

inline constexpr ColorSlotRow newFrequencyBarRows[] = {
    {IColorBase::NewFrequencyBarBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Hi"), nullptr},
    {IColorBase::NewFrequencyBarBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Lo"), nullptr},
    {IColorBase::NewFrequencyBarBackgroundInBandwidth, QT_TRANSLATE_NOOP("ColorsCtrl", "Background in Bandwidth"), nullptr},
    {IColorBase::NewFrequencyBarText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text"), nullptr},
};

inline constexpr ColorSlotRow bitStreamRows[] = {
    {IColorBase::BitStreamBit0, QT_TRANSLATE_NOOP("ColorsCtrl", "Bit 0"), nullptr},
    {IColorBase::BitStreamBit1, QT_TRANSLATE_NOOP("ColorsCtrl", "Bit 1"), nullptr},
    {IColorBase::BitStreamBelowThreshold, QT_TRANSLATE_NOOP("ColorsCtrl", "Below Threshold"), nullptr},
    {IColorBase::BitStreamText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text"), nullptr},
    {IColorBase::BitStreamBackground, QT_TRANSLATE_NOOP("ColorsCtrl", "Background"), nullptr},
};

inline constexpr ColorSlotRow detectionRows[] = {
    {IColorBase::DetectionBackground, QT_TRANSLATE_NOOP("ColorsCtrl", "Background"), nullptr},
    {IColorBase::DetectionActivePen, QT_TRANSLATE_NOOP("ColorsCtrl", "Active Pen"), nullptr},
    {IColorBase::DetectionActiveBrush, QT_TRANSLATE_NOOP("ColorsCtrl", "Active Brush"), nullptr},
    {IColorBase::DetectionInactivePen, QT_TRANSLATE_NOOP("ColorsCtrl", "Inactive Pen"), nullptr},
    {IColorBase::DetectionInactiveBrush, QT_TRANSLATE_NOOP("ColorsCtrl", "Inactive Brush"), nullptr},
    {IColorBase::DetectionCurrentPen, QT_TRANSLATE_NOOP("ColorsCtrl", "Current Pen"), nullptr},
    {IColorBase::DetectionCurrentActiveBrush, QT_TRANSLATE_NOOP("ColorsCtrl", "Current Active Brush"), nullptr},
    {IColorBase::DetectionCurrentInactiveBrush, QT_TRANSLATE_NOOP("ColorsCtrl", "Current Inactive Brush"), nullptr},
};

inline constexpr ColorSlotRow relativeBearingRows[] = {
    {IColorBase::RelativeBearingStarboard, QT_TRANSLATE_NOOP("ColorsCtrl", "Starboard"), nullptr},
    {IColorBase::RelativeBearingPortside, QT_TRANSLATE_NOOP("ColorsCtrl", "Portside"), nullptr},
    {IColorBase::RelativeBearingZeroAnd180, QT_TRANSLATE_NOOP("ColorsCtrl", "0 and 180 deg"), nullptr},
    {IColorBase::RelativeBearingText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text"), nullptr},
};

inline constexpr ColorSlotRow plannerRows[] = {
    {IColorBase::PlannerPlanned, QT_TRANSLATE_NOOP("ColorsCtrl", "Planned"), nullptr},
    {IColorBase::PlannerEditing, QT_TRANSLATE_NOOP("ColorsCtrl", "Editing"), nullptr},
    {IColorBase::PlannerSubmitted, QT_TRANSLATE_NOOP("ColorsCtrl", "Submitted"), nullptr},
    {IColorBase::PlannerAboutToStart, QT_TRANSLATE_NOOP("ColorsCtrl", "AboutToStart"), nullptr},
    {IColorBase::PlannerRunning, QT_TRANSLATE_NOOP("ColorsCtrl", "Running"), nullptr},
    {IColorBase::PlannerStopped, QT_TRANSLATE_NOOP("ColorsCtrl", "Stopped"), nullptr},
    {IColorBase::PlannerDisabled, QT_TRANSLATE_NOOP("ColorsCtrl", "Disabled"), nullptr},
    {IColorBase::PlannerFinished, QT_TRANSLATE_NOOP("ColorsCtrl", "Finished"), nullptr},
    {IColorBase::PlannerAborted, QT_TRANSLATE_NOOP("ColorsCtrl", "Aborted"), nullptr},
    {IColorBase::PlannerFailed, QT_TRANSLATE_NOOP("ColorsCtrl", "Failed"), nullptr},
    {IColorBase::PlannerProduction, QT_TRANSLATE_NOOP("ColorsCtrl", "Production"), nullptr},
    {IColorBase::PlannerTuner, QT_TRANSLATE_NOOP("ColorsCtrl", "Tuner"), nullptr},
    {IColorBase::PlannerSearch, QT_TRANSLATE_NOOP("ColorsCtrl", "Search"), nullptr},
    {IColorBase::PlannerSurveillance, QT_TRANSLATE_NOOP("ColorsCtrl", "Surveillance"), nullptr},
    {IColorBase::PlannerPool, QT_TRANSLATE_NOOP("ColorsCtrl", "Pool"), nullptr},
    {IColorBase::PlannerOther, QT_TRANSLATE_NOOP("ColorsCtrl", "Other"), nullptr},
    {IColorBase::PlannerExciter, QT_TRANSLATE_NOOP("ColorsCtrl", "Exciter"), nullptr},
    {IColorBase::PlannerAntenna, QT_TRANSLATE_NOOP("ColorsCtrl", "Antenna"), nullptr},
    {IColorBase::PlannerSkornReceiver, QT_TRANSLATE_NOOP("ColorsCtrl", "Skorn Receiver"), nullptr},
};

inline constexpr ColorSlotRow trafficLightsRows[] = {
    {IColorBase::TrafficLightStop, QT_TRANSLATE_NOOP("ColorsCtrl", "Stop"), nullptr},
    {IColorBase::TrafficLightYield, QT_TRANSLATE_NOOP("ColorsCtrl", "Yield"), nullptr},
    {IColorBase::TrafficLightGo, QT_TRANSLATE_NOOP("ColorsCtrl", "Go"), nullptr},
};

inline constexpr ColorSlotRow drawPaneSpecialCurvesRows[] = {
    {IColorBase::DrawPaneLimitLine, QT_TRANSLATE_NOOP("ColorsCtrl", "Limit Line"), nullptr},
    {IColorBase::DrawPaneMinMaxHold, QT_TRANSLATE_NOOP("ColorsCtrl", "Min Max Hold"), nullptr},
    {IColorBase::DrawPaneReferenceCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Reference Curve"), nullptr},
};

inline constexpr ColorSlotRow diagramRows[] = {
    {IColorBase::TimeDiagramMainCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Time Diagram Main Curve"), nullptr},
    {IColorBase::TimeDiagramSecondaryCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Time Diagram Secondary Curve"), nullptr},
    {IColorBase::TimeDiagramBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "Time Diagram Background (high)"), nullptr},
    {IColorBase::TimeDiagramBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "Time Diagram Background (low)"), nullptr},
    {IColorBase::EyeDiagramCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Eye Diagram Curve"), nullptr},
    {IColorBase::EyeDiagramBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "Eye Diagram Background (high)"), nullptr},
    {IColorBase::EyeDiagramBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "Eye Diagram Background (low)"), nullptr},
    {IColorBase::IQDiagramCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "IQ Diagram Curve"), nullptr},
    {IColorBase::IQDiagramBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "IQ Diagram Background (high)"), nullptr},
    {IColorBase::IQDiagramBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "IQ Diagram Background (low)"), nullptr},
};

inline constexpr ColorSlotRow productionResultRows[] = {
    {IColorBase::ProductionResultRunning, QT_TRANSLATE_NOOP("ColorsCtrl", "Running"), nullptr},
    {IColorBase::ProductionResultCentral, QT_TRANSLATE_NOOP("ColorsCtrl", "Central"), nullptr},
    {IColorBase::ProductionResultInvalid, QT_TRANSLATE_NOOP("ColorsCtrl", "Invalid"), nullptr},
    {IColorBase::ProductionResultIF, QT_TRANSLATE_NOOP("ColorsCtrl", "IF"), nullptr},
    {IColorBase::ProductionResultRemote, QT_TRANSLATE_NOOP("ColorsCtrl", "Remote"), nullptr},
    {IColorBase::ProductionResultLocal, QT_TRANSLATE_NOOP("ColorsCtrl", "Local"), nullptr},
    {IColorBase::ProductionResultUnknown, QT_TRANSLATE_NOOP("ColorsCtrl", "Unknown"), nullptr},
};

inline constexpr std::array<ColorSlotGroup, 19> all{{
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Axis"), 0x1, axisRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Frequency Axis"), 0x1, frequencyAxisRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Y Axis"), 0x1, yAxisRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Drawpane"), 0x1, drawPaneRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Bar"), 0x1, barRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Marker"), 0x1, markerRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Caption"), 0x1, captionRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Frequency Types"), 0x1, signalTypeRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "JobFrame"), 0x2, jobFrameRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Frequency Bar"), 0x4, frequencyBarRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Frequency Bar New"), 0, newFrequencyBarRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Bit Stream"), 0x8, bitStreamRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Detection Conventional - Attention, Colors will be or'ed with Background!"), 0x10, detectionRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Axis Colors - Relative Bearing Mode"), 0x20, relativeBearingRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Planner Colors: Type and State"), 0x40, plannerRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Traffic lights: multi purpose red, yellow, green"), 0x80, trafficLightsRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Drawpane Special Curves"), 0x100, drawPaneSpecialCurvesRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Time/Eye/IQ Diagram"), 0x400, diagramRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Production Result"), 0x800, productionResultRows},
}};
// clang-format on

} // namespace ColorSlotGroups
