// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/colorsetcodec.h>

/// The assignment that a new installation starts with: for each slot the id of its colour.
///
/// It is made for a light desktop. Axes and bars have light backgrounds with dark text; the draw
/// pane and the diagrams are dark screens with bright curves, whose frozen variants are dimmer.
/// The slots 75, 76, 122 and 123 mean nothing yet and stay empty.
namespace ColorSetFactory {

inline constexpr qint32 none = -1;

// clang-format off
inline constexpr ColorSetCodec::Ids ids{
    1015, //   0 no row
    1,    //   1 Axis: Text
    1007, //   2 Axis: Out of Zoom
    1000, //   3 Drawpane: Background (low)
    1036, //   4 Drawpane: Background in Bandwidth
    1018, //   5 Drawpane: Background in Audio Bandwidth
    1007, //   6 Drawpane: Background in Job
    5,    //   7 Drawpane: Background out of Job
    1014, //   8 Drawpane: Result Panel Text
    1015, //   9 no row
    1015, //  10 Drawpane: Minimum Points
    1075, //  11 Drawpane: Maximum Points
    1014, //  12 Drawpane: Main Curve
    1069, //  13 Drawpane: Main Curve Maximum Shadow
    1011, //  14 Drawpane: Secondary Curve
    1043, //  15 no row
    1036, //  16 Bar: Value
    1043, //  17 Bar: Disabled
    1013, //  18 no row
    1066, //  19 Bar: Overload 0
    1014, //  20 Bar: Overload 1
    1084, //  21 Bar: Overload 2
    1082, //  22 Bar: Overload 3
    1080, //  23 Bar: Overload 4
    1096, //  24 Bar: Overload 5
    1053, //  25 Bar: Overload 6
    1092, //  26 Bar: Overload 7
    1075, //  27 Bar: Overload 8
    1073, //  28 Bar: Overload 9
    1001, //  29 Bar: Hold Maximum
    1080, //  30 JobFrame: High Border
    1085, //  31 JobFrame: Low Border
    1041, //  32 JobFrame: Inside
    1075, //  33 Marker: Additional (Red)
    1085, //  34 Marker: Additional (Blue)
    1013, //  35 Marker: Secondary (Threshold)
    1080, //  36 Marker: Main (Frequency)
    1010, //  37 Marker: Measurement
    1011, //  38 Marker: Additional (Cyan)
    1043, //  39 Marker: Grayed
    1046, //  40 Frequency Bar: Background
    1083, //  41 Frequency Bar: Background Highlighted
    1035, //  42 Frequency Bar: in Bandwidth
    1000, //  43 Frequency Bar: Text
    1008, //  44 Frequency Types: 'a'
    1080, //  45 Frequency Types: 'b'
    1069, //  46 Frequency Types: 'c'
    1085, //  47 Frequency Types: 'd'
    1010, //  48 Frequency Types: 'e'
    1014, //  49 Frequency Types: 'f'
    1012, //  50 Frequency Types: 'g'
    1011, //  51 Frequency Types: 'h'
    1013, //  52 Frequency Types: 'i'
    1055, //  53 Frequency Types: 'j'
    1059, //  54 Frequency Types: 'k'
    1015, //  55 Frequency Types: 'l'
    1028, //  56 Frequency Types: 'm'
    1052, //  57 Frequency Types: 'n'
    1021, //  58 Frequency Types: 'o'
    1036, //  59 Frequency Types: 'p'
    1087, //  60 Frequency Types: 'q'
    1001, //  61 Caption: Background Focussed
    1015, //  62 Caption: Focussed Text
    1045, //  63 Caption: Background not Focussed
    1040, //  64 Caption: Not Focussed Text
    1014, //  65 Caption: Highlighted Focussed Text
    0,    //  66 no row
    1023, //  67 Bit Stream: Bit 0
    1080, //  68 Bit Stream: Bit 1
    1044, //  69 Bit Stream: Below Threshold
    1000, //  70 Bit Stream: Text
    1015, //  71 Bit Stream: Background
    1008, //  72 Drawpane: Main Curve - Frozen
    1007, //  73 Drawpane: Main Curve Maximum Shadow - Frozen
    1028, //  74 Drawpane: Secondary Curve - Frozen
    none, //  75 no row
    none, //  76 no row
    1000, //  77 Detection Conventional: Background
    1010, //  78 Detection Conventional: Active Pen
    1002, //  79 Detection Conventional: Active Brush
    1043, //  80 Detection Conventional: Inactive Pen
    1041, //  81 Detection Conventional: Inactive Brush
    1014, //  82 Detection Conventional: Current Pen
    1070, //  83 Detection Conventional: Current Active Brush
    1071, //  84 Detection Conventional: Current Inactive Brush
    1064, //  85 Marker: Measurement - Centered
    1055, //  86 Marker: Additional Frequency
    1036, //  87 Axis Colors - Relative Bearing Mode: Starboard
    1075, //  88 Axis Colors - Relative Bearing Mode: Portside
    1084, //  89 Axis Colors - Relative Bearing Mode: 0 and 180 deg
    1000, //  90 Axis Colors - Relative Bearing Mode: Text
    1031, //  91 Drawpane: Filtered Background
    1048, //  92 Drawpane: Background, where no KFactors available
    1055, //  93 Frequency Bar: Local Suppress
    1054, //  94 Frequency Bar: Global Suppress
    1023, //  95 Planner Colors: Planned
    1083, //  96 Planner Colors: Editing
    1087, //  97 Planner Colors: Submitted
    1084, //  98 Planner Colors: AboutToStart
    1036, //  99 Planner Colors: Running
    1080, // 100 Planner Colors: Stopped
    1044, // 101 Planner Colors: Disabled
    1089, // 102 Planner Colors: Finished
    1059, // 103 Planner Colors: Aborted
    1012, // 104 Planner Colors: Failed
    1085, // 105 Planner Colors: Production
    1035, // 106 Planner Colors: Tuner
    1067, // 107 Planner Colors: Search
    1054, // 108 Planner Colors: Surveillance
    1047, // 109 Planner Colors: Pool
    1045, // 110 Planner Colors: Other
    1092, // 111 Planner Colors: Exciter
    1027, // 112 Planner Colors: Antenna
    1055, // 113 Planner Colors: Skorn Receiver
    1012, // 114 Traffic lights: Stop
    1014, // 115 Traffic lights: Yield
    1036, // 116 Traffic lights: Go
    1072, // 117 Drawpane Special Curves: Limit Line
    1089, // 118 Drawpane Special Curves: Min Max Hold
    1037, // 119 Drawpane Special Curves: Reference Curve
    1040, // 120 Drawpane: Background (high)
    1041, // 121 Drawpane: Grid
    none, // 122 no row
    none, // 123 no row
    1046, // 124 Frequency Axis: Background Hi
    1045, // 125 Frequency Axis: Background Lo
    1000, // 126 Frequency Axis: Text
    1046, // 127 Frequency Bar New: Background Hi
    1045, // 128 Frequency Bar New: Background Lo
    1035, // 129 Frequency Bar New: Background in Bandwidth
    1000, // 130 Frequency Bar New: Text
    1000, // 131 Y Axis: Text
    1046, // 132 Y Axis: Background
    1014, // 133 Time/Eye/IQ Diagram: Time Diagram Main Curve
    1011, // 134 Time/Eye/IQ Diagram: Time Diagram Secondary Curve
    1040, // 135 Time/Eye/IQ Diagram: Time Diagram Background (high)
    1000, // 136 Time/Eye/IQ Diagram: Time Diagram Background (low)
    1010, // 137 Time/Eye/IQ Diagram: Eye Diagram Curve
    1040, // 138 Time/Eye/IQ Diagram: Eye Diagram Background (high)
    1000, // 139 Time/Eye/IQ Diagram: Eye Diagram Background (low)
    1085, // 140 Time/Eye/IQ Diagram: IQ Diagram Curve
    1040, // 141 Time/Eye/IQ Diagram: IQ Diagram Background (high)
    1000, // 142 Time/Eye/IQ Diagram: IQ Diagram Background (low)
    1036, // 143 Production Result: Running
    1085, // 144 Production Result: Central
    1075, // 145 Production Result: Invalid
    1084, // 146 Production Result: IF
    1059, // 147 Production Result: Remote
    1087, // 148 Production Result: Local
    1043, // 149 Production Result: Unknown
};
// clang-format on

} // namespace ColorSetFactory
