// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QString>

/// The ways to write a geographic position, with one position in each of them. The values are
/// stored in configurations.
enum class CoordFormat : int {
    DegreesMinutesSeconds = 0, ///< N 48°08'14.3" E 011°34'31.0"
    DegreesMinutes = 1,        ///< N 48°08.239' E 011°34.517'
    Degrees = 2,               ///< N 48.13731° E 011.57528°
    SignedDegrees = 3,         ///< 48.13731 11.57528
    Utm = 4,                   ///< 32U 691587 5334769
    Mgrs = 5,                  ///< 32U PU 91587 34769
    MaidenheadLocator = 6,     ///< JN58SD
    Georef = 7,                ///< NKMD34510823
};

inline constexpr int coordFormatCount = 8;

/// Display name of the format, translated; empty for a value outside the enumeration.
JTBASE_EXPORT QString getTranslatedCoordFormatName(CoordFormat format);

/// Writes a WGS 84 position. Latitude -90 to 90 and longitude -180 to 180 in degrees, north and
/// east positive; a position outside, NaN, or one that the format cannot express (UTM and MGRS end
/// at 80° S and 84° N) gives an empty text. Angles and UTM metres are rounded; MGRS, locator and
/// GEOREF name the square in which the position lies. The three count 180° E as 180° W, like UTM.
JTBASE_EXPORT QString formatPosition(double latitude, double longitude, CoordFormat format);
