// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/icolorbase.h>

#include <QCoreApplication>

#include <array>
#include <span>

/// One row of the colour editor. The texts are to be translated in the context "ColorsCtrl".
struct ColorSlotRow
{
    /// Marks a row that has no such slot.
    static constexpr int noSlot = -1;

    int slot;         ///< The slot that the row edits, noSlot for a row that only tells something.
    const char* text; ///< Null: the row has the name of the slot's signal type.
    const char* note = nullptr; ///< What a row without slot tells, null for all others.
};

/// A group of rows of the colour editor.
struct ColorSlotGroup
{
    const char* heading; ///< To be translated in the context "ColorsCtrl".
    quint32 maskBit;     ///< In ColorSet::GetShowInDialog(); 0 for a group that is always shown.
    /// In the order in which the editor shows them.
    std::span<const ColorSlotRow> rows;

    /// Whether an editor with this mask shows the group; see ColorSet::SetShowInDialog().
    constexpr bool isShown(quint32 mask) const { return maskBit == 0 || (mask & maskBit) != 0; }
};

/// The rows of the colour editor; they fix what each slot of the colour set means.
namespace ColorSlotGroups {

using enum IColorBase::ECOLOR;

/// @cond
// clang-format off
inline constexpr ColorSlotRow axisRows[] = {
    {ColorSlotRow::noSlot, QT_TRANSLATE_NOOP("ColorsCtrl", "Background"),
     QT_TRANSLATE_NOOP("ColorsCtrl", "Fixed to System Background")},
    {AxisText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text")},
    {AxisOutOfZoom, QT_TRANSLATE_NOOP("ColorsCtrl", "Out of Zoom")},
};

inline constexpr ColorSlotRow frequencyAxisRows[] = {
    {FrequencyAxisBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Hi")},
    {FrequencyAxisBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Lo")},
    {FrequencyAxisText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text")},
};

inline constexpr ColorSlotRow yAxisRows[] = {
    {YAxisText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text")},
    {YAxisBackground, QT_TRANSLATE_NOOP("ColorsCtrl", "Background")},
};

inline constexpr ColorSlotRow drawPaneRows[] = {
    {DrawPaneBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "Background (low)")},
    {DrawPaneBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "Background (high)")},
    {DrawPaneBackgroundInBandwidth, QT_TRANSLATE_NOOP("ColorsCtrl", "Background in Bandwidth")},
    {DrawPaneBackgroundInAudioBandwidth,
     QT_TRANSLATE_NOOP("ColorsCtrl", "Background in Audio Bandwidth")},
    {DrawPaneBackgroundInJob, QT_TRANSLATE_NOOP("ColorsCtrl", "Background in Job")},
    {DrawPaneBackgroundOutOfJob, QT_TRANSLATE_NOOP("ColorsCtrl", "Background out of Job")},
    {DrawPaneResultPanelText, QT_TRANSLATE_NOOP("ColorsCtrl", "Result Panel Text")},
    {DrawPaneMinimumPoints, QT_TRANSLATE_NOOP("ColorsCtrl", "Minimum Points")},
    {DrawPaneMaximumPoints, QT_TRANSLATE_NOOP("ColorsCtrl", "Maximum Points")},
    {DrawPaneMainCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Main Curve")},
    {DrawPaneMainCurveMaximumShadow, QT_TRANSLATE_NOOP("ColorsCtrl", "Main Curve Maximum Shadow")},
    {DrawPaneMainCurveFrozen, QT_TRANSLATE_NOOP("ColorsCtrl", "Main Curve - Frozen")},
    {DrawPaneMainCurveMaximumShadowFrozen,
     QT_TRANSLATE_NOOP("ColorsCtrl", "Main Curve Maximum Shadow - Frozen")},
    {DrawPaneSecondaryCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Secondary Curve")},
    {DrawPaneSecondaryCurveFrozen, QT_TRANSLATE_NOOP("ColorsCtrl", "Secondary Curve - Frozen")},
    {DrawPaneFilteredBackground, QT_TRANSLATE_NOOP("ColorsCtrl", "Filtered Background")},
    {DrawPaneBackgroundWithoutKFactors,
     QT_TRANSLATE_NOOP("ColorsCtrl", "Background, where no KFactors available")},
    {DrawPaneGrid, QT_TRANSLATE_NOOP("ColorsCtrl", "Grid")},
};

inline constexpr ColorSlotRow barRows[] = {
    {BarValue, QT_TRANSLATE_NOOP("ColorsCtrl", "Value")},
    {BarDisabled, QT_TRANSLATE_NOOP("ColorsCtrl", "Disabled")},
    {ColorSlotRow::noSlot, QT_TRANSLATE_NOOP("ColorsCtrl", "Text"),
     QT_TRANSLATE_NOOP("ColorsCtrl", "Color is calculated from background to black or white")},
    {BarOverload0, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 0")},
    {BarOverload1, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 1")},
    {BarOverload2, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 2")},
    {BarOverload3, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 3")},
    {BarOverload4, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 4")},
    {BarOverload5, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 5")},
    {BarOverload6, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 6")},
    {BarOverload7, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 7")},
    {BarOverload8, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 8")},
    {BarOverload9, QT_TRANSLATE_NOOP("ColorsCtrl", "Overload 9")},
    {BarHoldMaximum, QT_TRANSLATE_NOOP("ColorsCtrl", "Hold Maximum")},
};

inline constexpr ColorSlotRow markerRows[] = {
    {MarkerAdditionalRed, QT_TRANSLATE_NOOP("ColorsCtrl", "Additional (Red)")},
    {MarkerAdditionalBlue, QT_TRANSLATE_NOOP("ColorsCtrl", "Additional (Blue)")},
    {MarkerAdditionalCyan, QT_TRANSLATE_NOOP("ColorsCtrl", "Additional (Cyan)")},
    {MarkerMain, QT_TRANSLATE_NOOP("ColorsCtrl", "Main (Frequency)")},
    {MarkerAdditionalFrequency, QT_TRANSLATE_NOOP("ColorsCtrl", "Additional Frequency")},
    {MarkerSecondary, QT_TRANSLATE_NOOP("ColorsCtrl", "Secondary (Threshold)")},
    {MarkerMeasurement, QT_TRANSLATE_NOOP("ColorsCtrl", "Measurement")},
    {MarkerMeasurementCentered, QT_TRANSLATE_NOOP("ColorsCtrl", "Measurement - Centered")},
    {MarkerGrayed, QT_TRANSLATE_NOOP("ColorsCtrl", "Grayed")},
};

inline constexpr ColorSlotRow captionRows[] = {
    {CaptionBackgroundFocussed, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Focussed")},
    {CaptionTextFocussed, QT_TRANSLATE_NOOP("ColorsCtrl", "Focussed Text")},
    {CaptionBackgroundNotFocussed, QT_TRANSLATE_NOOP("ColorsCtrl", "Background not Focussed")},
    {CaptionTextNotFocussed, QT_TRANSLATE_NOOP("ColorsCtrl", "Not Focussed Text")},
    {CaptionTextHighlighted, QT_TRANSLATE_NOOP("ColorsCtrl", "Highlighted Focussed Text")},
};

inline constexpr ColorSlotRow signalTypeRows[] = {
    {SignalTypeA, nullptr},
    {SignalTypeB, nullptr},
    {SignalTypeC, nullptr},
    {SignalTypeD, nullptr},
    {SignalTypeE, nullptr},
    {SignalTypeF, nullptr},
    {SignalTypeG, nullptr},
    {SignalTypeH, nullptr},
    {SignalTypeI, nullptr},
    {SignalTypeJ, nullptr},
    {SignalTypeK, nullptr},
    {SignalTypeL, nullptr},
    {SignalTypeM, nullptr},
    {SignalTypeN, nullptr},
    {SignalTypeO, nullptr},
    {SignalTypeP, nullptr},
    {SignalTypeQ, nullptr},
};

inline constexpr ColorSlotRow jobFrameRows[] = {
    {JobFrameHighBorder, QT_TRANSLATE_NOOP("ColorsCtrl", "High Border")},
    {JobFrameLowBorder, QT_TRANSLATE_NOOP("ColorsCtrl", "Low Border")},
    {JobFrameInside, QT_TRANSLATE_NOOP("ColorsCtrl", "Inside")},
};

inline constexpr ColorSlotRow frequencyBarRows[] = {
    {FrequencyBarBackground, QT_TRANSLATE_NOOP("ColorsCtrl", "Background")},
    {FrequencyBarBackgroundHighlighted, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Highlighted")},
    {FrequencyBarInBandwidth, QT_TRANSLATE_NOOP("ColorsCtrl", "in Bandwidth")},
    {FrequencyBarText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text")},
    {FrequencyBarLocalSuppress, QT_TRANSLATE_NOOP("ColorsCtrl", "Local Suppress")},
    {FrequencyBarGlobalSuppress, QT_TRANSLATE_NOOP("ColorsCtrl", "Global Suppress")},
};

inline constexpr ColorSlotRow newFrequencyBarRows[] = {
    {NewFrequencyBarBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Hi")},
    {NewFrequencyBarBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "Background Lo")},
    {NewFrequencyBarBackgroundInBandwidth,
     QT_TRANSLATE_NOOP("ColorsCtrl", "Background in Bandwidth")},
    {NewFrequencyBarText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text")},
};

inline constexpr ColorSlotRow bitStreamRows[] = {
    {BitStreamBit0, QT_TRANSLATE_NOOP("ColorsCtrl", "Bit 0")},
    {BitStreamBit1, QT_TRANSLATE_NOOP("ColorsCtrl", "Bit 1")},
    {BitStreamBelowThreshold, QT_TRANSLATE_NOOP("ColorsCtrl", "Below Threshold")},
    {BitStreamText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text")},
    {BitStreamBackground, QT_TRANSLATE_NOOP("ColorsCtrl", "Background")},
};

inline constexpr ColorSlotRow detectionRows[] = {
    {DetectionBackground, QT_TRANSLATE_NOOP("ColorsCtrl", "Background")},
    {DetectionActivePen, QT_TRANSLATE_NOOP("ColorsCtrl", "Active Pen")},
    {DetectionActiveBrush, QT_TRANSLATE_NOOP("ColorsCtrl", "Active Brush")},
    {DetectionInactivePen, QT_TRANSLATE_NOOP("ColorsCtrl", "Inactive Pen")},
    {DetectionInactiveBrush, QT_TRANSLATE_NOOP("ColorsCtrl", "Inactive Brush")},
    {DetectionCurrentPen, QT_TRANSLATE_NOOP("ColorsCtrl", "Current Pen")},
    {DetectionCurrentActiveBrush, QT_TRANSLATE_NOOP("ColorsCtrl", "Current Active Brush")},
    {DetectionCurrentInactiveBrush, QT_TRANSLATE_NOOP("ColorsCtrl", "Current Inactive Brush")},
};

inline constexpr ColorSlotRow relativeBearingRows[] = {
    {RelativeBearingStarboard, QT_TRANSLATE_NOOP("ColorsCtrl", "Starboard")},
    {RelativeBearingPortside, QT_TRANSLATE_NOOP("ColorsCtrl", "Portside")},
    {RelativeBearingZeroAnd180, QT_TRANSLATE_NOOP("ColorsCtrl", "0 and 180 deg")},
    {RelativeBearingText, QT_TRANSLATE_NOOP("ColorsCtrl", "Text")},
};

inline constexpr ColorSlotRow plannerRows[] = {
    {PlannerPlanned, QT_TRANSLATE_NOOP("ColorsCtrl", "Planned")},
    {PlannerEditing, QT_TRANSLATE_NOOP("ColorsCtrl", "Editing")},
    {PlannerSubmitted, QT_TRANSLATE_NOOP("ColorsCtrl", "Submitted")},
    {PlannerAboutToStart, QT_TRANSLATE_NOOP("ColorsCtrl", "AboutToStart")},
    {PlannerRunning, QT_TRANSLATE_NOOP("ColorsCtrl", "Running")},
    {PlannerStopped, QT_TRANSLATE_NOOP("ColorsCtrl", "Stopped")},
    {PlannerDisabled, QT_TRANSLATE_NOOP("ColorsCtrl", "Disabled")},
    {PlannerFinished, QT_TRANSLATE_NOOP("ColorsCtrl", "Finished")},
    {PlannerAborted, QT_TRANSLATE_NOOP("ColorsCtrl", "Aborted")},
    {PlannerFailed, QT_TRANSLATE_NOOP("ColorsCtrl", "Failed")},
    {PlannerProduction, QT_TRANSLATE_NOOP("ColorsCtrl", "Production")},
    {PlannerTuner, QT_TRANSLATE_NOOP("ColorsCtrl", "Tuner")},
    {PlannerSearch, QT_TRANSLATE_NOOP("ColorsCtrl", "Search")},
    {PlannerSurveillance, QT_TRANSLATE_NOOP("ColorsCtrl", "Surveillance")},
    {PlannerPool, QT_TRANSLATE_NOOP("ColorsCtrl", "Pool")},
    {PlannerOther, QT_TRANSLATE_NOOP("ColorsCtrl", "Other")},
    {PlannerExciter, QT_TRANSLATE_NOOP("ColorsCtrl", "Exciter")},
    {PlannerAntenna, QT_TRANSLATE_NOOP("ColorsCtrl", "Antenna")},
    {PlannerSkornReceiver, QT_TRANSLATE_NOOP("ColorsCtrl", "Skorn Receiver")},
};

inline constexpr ColorSlotRow trafficLightsRows[] = {
    {TrafficLightStop, QT_TRANSLATE_NOOP("ColorsCtrl", "Stop")},
    {TrafficLightYield, QT_TRANSLATE_NOOP("ColorsCtrl", "Yield")},
    {TrafficLightGo, QT_TRANSLATE_NOOP("ColorsCtrl", "Go")},
};

inline constexpr ColorSlotRow drawPaneSpecialCurvesRows[] = {
    {DrawPaneLimitLine, QT_TRANSLATE_NOOP("ColorsCtrl", "Limit Line")},
    {DrawPaneMinMaxHold, QT_TRANSLATE_NOOP("ColorsCtrl", "Min Max Hold")},
    {DrawPaneReferenceCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Reference Curve")},
};

inline constexpr ColorSlotRow diagramRows[] = {
    {TimeDiagramMainCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Time Diagram Main Curve")},
    {TimeDiagramSecondaryCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Time Diagram Secondary Curve")},
    {TimeDiagramBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "Time Diagram Background (high)")},
    {TimeDiagramBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "Time Diagram Background (low)")},
    {EyeDiagramCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "Eye Diagram Curve")},
    {EyeDiagramBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "Eye Diagram Background (high)")},
    {EyeDiagramBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "Eye Diagram Background (low)")},
    {IQDiagramCurve, QT_TRANSLATE_NOOP("ColorsCtrl", "IQ Diagram Curve")},
    {IQDiagramBackgroundHigh, QT_TRANSLATE_NOOP("ColorsCtrl", "IQ Diagram Background (high)")},
    {IQDiagramBackgroundLow, QT_TRANSLATE_NOOP("ColorsCtrl", "IQ Diagram Background (low)")},
};

inline constexpr ColorSlotRow productionResultRows[] = {
    {ProductionResultRunning, QT_TRANSLATE_NOOP("ColorsCtrl", "Running")},
    {ProductionResultCentral, QT_TRANSLATE_NOOP("ColorsCtrl", "Central")},
    {ProductionResultInvalid, QT_TRANSLATE_NOOP("ColorsCtrl", "Invalid")},
    {ProductionResultIF, QT_TRANSLATE_NOOP("ColorsCtrl", "IF")},
    {ProductionResultRemote, QT_TRANSLATE_NOOP("ColorsCtrl", "Remote")},
    {ProductionResultLocal, QT_TRANSLATE_NOOP("ColorsCtrl", "Local")},
    {ProductionResultUnknown, QT_TRANSLATE_NOOP("ColorsCtrl", "Unknown")},
};

/// @endcond

/// All groups, in the order of the editor.
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
    {QT_TRANSLATE_NOOP("ColorsCtrl",
                        "Detection Conventional - Attention, Colors will be or'ed with Background!"),
     0x10, detectionRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Axis Colors - Relative Bearing Mode"),
     0x20, relativeBearingRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Planner Colors: Type and State"), 0x40, plannerRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Traffic lights: multi purpose red, yellow, green"),
     0x80, trafficLightsRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Drawpane Special Curves"), 0x100, drawPaneSpecialCurvesRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Time/Eye/IQ Diagram"), 0x400, diagramRows},
    {QT_TRANSLATE_NOOP("ColorsCtrl", "Production Result"), 0x800, productionResultRows},
}};
// clang-format on

} // namespace ColorSlotGroups
