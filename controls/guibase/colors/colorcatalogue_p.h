// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QPalette>

#include <array>

/// The content of the colour catalogue, one entry a line in the order of the ids.
namespace ColorCatalogue {

inline constexpr int firstPaletteId = 1000;
inline constexpr int firstUserId = 2000;

struct SystemColor
{
    const char* name;
    QPalette::ColorRole role;
    QRgb withoutApplication; ///< What a light desktop shows.
};

struct PaletteColor
{
    const char* color;
    const char* name;
};

// clang-format off
inline constexpr std::array systemColors{
    SystemColor{QT_TRANSLATE_NOOP("Colors", "System::Background"), QPalette::Window, 0xffefefefU},
    SystemColor{QT_TRANSLATE_NOOP("Colors", "System::Text"), QPalette::WindowText, 0xff000000U},
    SystemColor{QT_TRANSLATE_NOOP("Colors", "System::CaptionText"),
                QPalette::HighlightedText, 0xffffffffU},
    SystemColor{QT_TRANSLATE_NOOP("Colors", "System::Caption"), QPalette::Highlight, 0xff2a6099U},
    SystemColor{QT_TRANSLATE_NOOP("Colors", "System::Light"), QPalette::Light, 0xffffffffU},
    SystemColor{QT_TRANSLATE_NOOP("Colors", "System::Dark"), QPalette::Dark, 0xff9f9f9fU},
};

// 1015 is white without its last bit on purpose: it differs from pure white. 1085 and 1097 carry
// the same colour on purpose.
inline constexpr std::array<PaletteColor, 98> palette{{
    {"#000", QT_TRANSLATE_NOOP("Colors", "Black")}, // 1000
    {"#008", QT_TRANSLATE_NOOP("Colors", "Blue")}, // 1001
    {"#080", QT_TRANSLATE_NOOP("Colors", "Green")}, // 1002
    {"#088", QT_TRANSLATE_NOOP("Colors", "Turquoise")}, // 1003
    {"#800", QT_TRANSLATE_NOOP("Colors", "Red")}, // 1004
    {"#808", QT_TRANSLATE_NOOP("Colors", "Magenta")}, // 1005
    {"#880", QT_TRANSLATE_NOOP("Colors", "Brown")}, // 1006
    {"#888", QT_TRANSLATE_NOOP("Colors", "Gray")}, // 1007
    {"#c0c0c0", QT_TRANSLATE_NOOP("Colors", "Light Gray")}, // 1008
    {"#00f", QT_TRANSLATE_NOOP("Colors", "Light Blue")}, // 1009
    {"#0f0", QT_TRANSLATE_NOOP("Colors", "Light Green")}, // 1010
    {"#0ff", QT_TRANSLATE_NOOP("Colors", "Light Turquoise")}, // 1011
    {"#f00", QT_TRANSLATE_NOOP("Colors", "Light Red")}, // 1012
    {"#f0f", QT_TRANSLATE_NOOP("Colors", "Light Magenta")}, // 1013
    {"#ff0", QT_TRANSLATE_NOOP("Colors", "Yellow")}, // 1014
    {"#fffffe", QT_TRANSLATE_NOOP("Colors", "White")}, // 1015
    {"#280099", QT_TRANSLATE_NOOP("Colors", "Blue 1")}, // 1016
    {"#4700b8", QT_TRANSLATE_NOOP("Colors", "Blue 2")}, // 1017
    {"#2300dc", QT_TRANSLATE_NOOP("Colors", "Blue 3")}, // 1018
    {"#2323dc", QT_TRANSLATE_NOOP("Colors", "Blue 4")}, // 1019
    {"#0047ff", QT_TRANSLATE_NOOP("Colors", "Blue 5")}, // 1020
    {"#0099ff", QT_TRANSLATE_NOOP("Colors", "Blue 6")}, // 1021
    {"#00b8ff", QT_TRANSLATE_NOOP("Colors", "Blue 7")}, // 1022
    {"#99ccff", QT_TRANSLATE_NOOP("Colors", "Blue 8")}, // 1023
    {"#00dcff", QT_TRANSLATE_NOOP("Colors", "Turquoise 1")}, // 1024
    {"#00cccc", QT_TRANSLATE_NOOP("Colors", "Turquoise 2")}, // 1025
    {"#23b8dc", QT_TRANSLATE_NOOP("Colors", "Turquoise 3")}, // 1026
    {"#47b8b8", QT_TRANSLATE_NOOP("Colors", "Turquoise 4")}, // 1027
    {"#33a3a3", QT_TRANSLATE_NOOP("Colors", "Turquoise 5")}, // 1028
    {"#198a8a", QT_TRANSLATE_NOOP("Colors", "Turquoise 6")}, // 1029
    {"#006b6b", QT_TRANSLATE_NOOP("Colors", "Turquoise 7")}, // 1030
    {"#004a4a", QT_TRANSLATE_NOOP("Colors", "Turquoise 8")}, // 1031
    {"#355e00", QT_TRANSLATE_NOOP("Colors", "Green 1")}, // 1032
    {"#5c8526", QT_TRANSLATE_NOOP("Colors", "Green 2")}, // 1033
    {"#7da647", QT_TRANSLATE_NOOP("Colors", "Green 3")}, // 1034
    {"#94bd5e", QT_TRANSLATE_NOOP("Colors", "Green 4")}, // 1035
    {"#00ae00", QT_TRANSLATE_NOOP("Colors", "Green 5")}, // 1036
    {"#33cc66", QT_TRANSLATE_NOOP("Colors", "Green 6")}, // 1037
    {"#3deb3d", QT_TRANSLATE_NOOP("Colors", "Green 7")}, // 1038
    {"#23ff23", QT_TRANSLATE_NOOP("Colors", "Green 8")}, // 1039
    {"#333333", QT_TRANSLATE_NOOP("Colors", "Gray 80%")}, // 1040
    {"#4c4c4c", QT_TRANSLATE_NOOP("Colors", "Gray 70%")}, // 1041
    {"#666666", QT_TRANSLATE_NOOP("Colors", "Gray 60%")}, // 1042
    {"#999999", QT_TRANSLATE_NOOP("Colors", "Gray 40%")}, // 1043
    {"#b3b3b3", QT_TRANSLATE_NOOP("Colors", "Gray 30%")}, // 1044
    {"#cccccc", QT_TRANSLATE_NOOP("Colors", "Gray 20%")}, // 1045
    {"#e6e6e6", QT_TRANSLATE_NOOP("Colors", "Gray 10%")}, // 1046
    {"#e6e6ff", QT_TRANSLATE_NOOP("Colors", "BlueGray")}, // 1047
    {"#4c1900", QT_TRANSLATE_NOOP("Colors", "Brown 1")}, // 1048
    {"#663300", QT_TRANSLATE_NOOP("Colors", "Brown 2")}, // 1049
    {"#804c19", QT_TRANSLATE_NOOP("Colors", "Brown 3")}, // 1050
    {"#996633", QT_TRANSLATE_NOOP("Colors", "Brown 4")}, // 1051
    {"#cc6633", QT_TRANSLATE_NOOP("Colors", "Orange 1")}, // 1052
    {"#ff6633", QT_TRANSLATE_NOOP("Colors", "Orange 2")}, // 1053
    {"#ff9966", QT_TRANSLATE_NOOP("Colors", "Orange 3")}, // 1054
    {"#ffcc99", QT_TRANSLATE_NOOP("Colors", "Orange 4")}, // 1055
    {"#94006b", QT_TRANSLATE_NOOP("Colors", "Magenta 1")}, // 1056
    {"#94476b", QT_TRANSLATE_NOOP("Colors", "Magenta 2")}, // 1057
    {"#944794", QT_TRANSLATE_NOOP("Colors", "Magenta 3")}, // 1058
    {"#9966cc", QT_TRANSLATE_NOOP("Colors", "Magenta 4")}, // 1059
    {"#6b4794", QT_TRANSLATE_NOOP("Colors", "Magenta 5")}, // 1060
    {"#6b2394", QT_TRANSLATE_NOOP("Colors", "Magenta 6")}, // 1061
    {"#6b0094", QT_TRANSLATE_NOOP("Colors", "Magenta 7")}, // 1062
    {"#5e11a6", QT_TRANSLATE_NOOP("Colors", "Magenta 8")}, // 1063
    {"#e6ff00", QT_TRANSLATE_NOOP("Colors", "Yellow 1")}, // 1064
    {"#ffff99", QT_TRANSLATE_NOOP("Colors", "Yellow 2")}, // 1065
    {"#ffff66", QT_TRANSLATE_NOOP("Colors", "Yellow 3")}, // 1066
    {"#e6e64c", QT_TRANSLATE_NOOP("Colors", "Yellow 4")}, // 1067
    {"#cccc00", QT_TRANSLATE_NOOP("Colors", "Yellow 5")}, // 1068
    {"#b3b300", QT_TRANSLATE_NOOP("Colors", "Yellow 6")}, // 1069
    {"#808019", QT_TRANSLATE_NOOP("Colors", "Yellow 7")}, // 1070
    {"#666600", QT_TRANSLATE_NOOP("Colors", "Yellow 8")}, // 1071
    {"#ff3366", QT_TRANSLATE_NOOP("Colors", "Red 1")}, // 1072
    {"#dc2300", QT_TRANSLATE_NOOP("Colors", "Red 2")}, // 1073
    {"#b84700", QT_TRANSLATE_NOOP("Colors", "Red 3")}, // 1074
    {"#ff3333", QT_TRANSLATE_NOOP("Colors", "Red 4")}, // 1075
    {"#eb613d", QT_TRANSLATE_NOOP("Colors", "Red 5")}, // 1076
    {"#b84747", QT_TRANSLATE_NOOP("Colors", "Red 6")}, // 1077
    {"#b80047", QT_TRANSLATE_NOOP("Colors", "Red 7")}, // 1078
    {"#99284c", QT_TRANSLATE_NOOP("Colors", "Red 8")}, // 1079
    {"#ff8000", QT_TRANSLATE_NOOP("Colors", "Orange")}, // 1080
    {"#00c4c4", QT_TRANSLATE_NOOP("Colors", "Ocean")}, // 1081
    {"#ee9a00", QT_TRANSLATE_NOOP("Colors", "Orange new 2")}, // 1082
    {"#fff68f", QT_TRANSLATE_NOOP("Colors", "Kakhi1")}, // 1083
    {"#ffd700", QT_TRANSLATE_NOOP("Colors", "Gold")}, // 1084
    {"#63b8ff", QT_TRANSLATE_NOOP("Colors", "SteelBlue1")}, // 1085
    {"#bfefff", QT_TRANSLATE_NOOP("Colors", "LightBlue1")}, // 1086
    {"#66cdaa", QT_TRANSLATE_NOOP("Colors", "MediumAquamarine")}, // 1087
    {"#ffffd4", QT_TRANSLATE_NOOP("Colors", "Aquamarine")}, // 1088
    {"#6495ed", QT_TRANSLATE_NOOP("Colors", "CornflowerBlue")}, // 1089
    {"#d2691e", QT_TRANSLATE_NOOP("Colors", "Chocolate")}, // 1090
    {"#8b5a2b", QT_TRANSLATE_NOOP("Colors", "Tan4")}, // 1091
    {"#ee5c42", QT_TRANSLATE_NOOP("Colors", "Tomato2")}, // 1092
    {"#b22222", QT_TRANSLATE_NOOP("Colors", "FireBrick")}, // 1093
    {"#ee2c2c", QT_TRANSLATE_NOOP("Colors", "FireBrick2")}, // 1094
    {"#008b8b", QT_TRANSLATE_NOOP("Colors", "DarkCyan")}, // 1095
    {"#ee7621", QT_TRANSLATE_NOOP("Colors", "Chocolate2")}, // 1096
    {"#63b8ff", QT_TRANSLATE_NOOP("Colors", "SteelBlue 2")}, // 1097
}};

inline constexpr std::array userColors{
    Qt::white, Qt::darkGray, // 2000
    Qt::green, Qt::blue, Qt::cyan, Qt::magenta, Qt::yellow, Qt::gray, // 2002
    Qt::white, Qt::white, Qt::white, Qt::white, Qt::white, Qt::white, Qt::white, Qt::white, // 2008
};
// clang-format on

} // namespace ColorCatalogue
