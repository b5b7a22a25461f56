// SPDX-License-Identifier: MIT
#pragma once

#include "geoposition.h"

#include <QChar>

#include <optional>

/// The grid of the universal transverse Mercator projection on the WGS 84 ellipsoid, which UTM and
/// MGRS share.
namespace UtmGrid {

struct Point
{
    int zone = 0;        ///< 1 to 60.
    QChar band;          ///< C to X without I and O, from south to north.
    double easting = 0;  ///< In metres, 500 km at the zone's central meridian.
    double northing = 0; ///< In metres; south of the equator, which is at 10,000 km there.
};

/// Bands of 8 degrees, the last one of 12, from 80° S.
inline constexpr char bands[] = "CDEFGHJKLMNPQRSTUVWX";
inline constexpr double falseNorthing = 10'000'000.0;

constexpr bool isNorthernBand(QChar band)
{
    return band >= u'N';
}

/// Nothing outside 80° S to 84° N. 180° E is the same meridian as 180° W.
std::optional<Point> fromPosition(GeoPosition position);
/// May lie in another zone or band, and anywhere on the globe, for a point beyond the zone.
GeoPosition toPosition(int zone, bool isNorthern, double easting, double northing);
/// The centre of a square or, where that lies in another zone or band than the point's, another
/// place in it that does not. Nothing when there is none.
std::optional<GeoPosition> insideOfSquare(const Point& centre, double size);

} // namespace UtmGrid
