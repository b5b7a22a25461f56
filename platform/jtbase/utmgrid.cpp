// SPDX-License-Identifier: MIT
#include "utmgrid_p.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace UtmGrid {

// Transverse Mercator projection by Krueger's series in the third flattening n, cut after n^4
// (errors far below a millimetre within a UTM zone). Formulas: C. F. F. Karney, "Transverse
// Mercator with an accuracy of a few nanometers", Journal of Geodesy 85 (2011) 475-485, equations 7
// to 21, 35 and 36.
namespace {

constexpr double radian = std::numbers::pi / 180.0;
constexpr double equatorialRadius = 6378137.0;
constexpr double flattening = 1.0 / 298.257223563;
constexpr double squaredEccentricity = flattening * (2.0 - flattening);
constexpr double n = flattening / (2.0 - flattening);
constexpr double n2 = n * n;
constexpr double n3 = n2 * n;
constexpr double n4 = n2 * n2;
constexpr double rectifyingRadius = equatorialRadius / (1.0 + n) * (1.0 + n2 / 4 + n4 / 64);
constexpr double scale = 0.9996 * rectifyingRadius;
constexpr double falseEasting = 500'000.0;

constexpr std::array<double, 4> forward = {
    n / 2 - n2 * 2 / 3 + n3 * 5 / 16 + n4 * 41 / 180,
    n2 * 13 / 48 - n3 * 3 / 5 + n4 * 557 / 1440,
    n3 * 61 / 240 - n4 * 103 / 140,
    n4 * 49561 / 161280,
};
constexpr std::array<double, 4> backward = {
    -(n / 2 - n2 * 2 / 3 + n3 * 37 / 96 - n4 / 360),
    -(n2 / 48 + n3 / 15 - n4 * 437 / 1440),
    -(n3 * 17 / 480 - n4 * 37 / 840),
    -(n4 * 4397 / 161280),
};

struct Plane
{
    double north;
    double east;
};

Plane corrected(Plane plane, const std::array<double, 4>& series)
{
    Plane result = plane;
    for (std::size_t i = 0; i < series.size(); ++i) {
        const double order = 2.0 * static_cast<double>(i + 1);
        result.north += series[i] * std::sin(order * plane.north) * std::cosh(order * plane.east);
        result.east += series[i] * std::cos(order * plane.north) * std::sinh(order * plane.east);
    }
    return result;
}

/// The tangent of the conformal latitude, from that of the geographic one.
double conformalTangent(double tangent)
{
    const double eccentricity = std::sqrt(squaredEccentricity);
    const double sine = tangent / std::hypot(1.0, tangent);
    return std::sinh(std::asinh(tangent) - eccentricity * std::atanh(eccentricity * sine));
}

/// The other way, by Newton's method.
double geographicTangent(double conformal)
{
    constexpr int steps = 5; // three reach the last digit
    constexpr double rest = 1.0 - squaredEccentricity;
    double tangent = conformal / rest;
    for (int i = 0; i < steps; ++i) {
        const double reached = conformalTangent(tangent);
        tangent += (conformal - reached) / std::hypot(1.0, reached) *
                   (1.0 + rest * tangent * tangent) / (rest * std::hypot(1.0, tangent));
    }
    return tangent;
}

/// With the wider zones of southern Norway and Svalbard.
int zoneOf(const GeoPosition& position)
{
    const auto [latitude, longitude] = position;
    if (latitude >= 56.0 && latitude < 64.0 && longitude >= 3.0 && longitude < 12.0)
        return 32;
    if (latitude >= 72.0 && longitude >= 0.0 && longitude < 42.0)
        return longitude < 9.0 ? 31 : longitude < 21.0 ? 33 : longitude < 33.0 ? 35 : 37;
    return static_cast<int>(std::floor((longitude + 180.0) / 6.0)) % 60 + 1;
}

double centralMeridian(int zone)
{
    return 6.0 * zone - 183.0;
}

struct Meridians
{
    double west;
    double east;
};

/// Between which the zone lies at this latitude.
Meridians meridiansOf(int zone, double latitude)
{
    if (latitude >= 56.0 && latitude < 64.0 && (zone == 31 || zone == 32))
        return zone == 31 ? Meridians{0, 3} : Meridians{3, 12};
    const double middle = centralMeridian(zone);
    if (latitude >= 72.0 && zone >= 31 && zone <= 37)
        return {zone == 31 ? 0 : middle - 6, zone == 37 ? 42 : middle + 6};
    return {middle - 3, middle + 3};
}

QChar bandOf(double latitude)
{
    return QLatin1Char(bands[qMin(19, static_cast<int>(std::floor((latitude + 80.0) / 8.0)))]);
}

/// The place in the zone and band that is nearest to the position in degrees.
GeoPosition movedInto(int zone, QChar band, GeoPosition position)
{
    constexpr double inside = 1e-11; // degrees: a micrometre
    const auto row = static_cast<double>(QLatin1String(bands).indexOf(band));
    const double south = -80 + 8 * row;
    const double north = band == u'X' ? 84 : south + 8;
    position.latitude = std::clamp(position.latitude, south, north - inside);
    const auto [west, east] = meridiansOf(zone, position.latitude);
    position.longitude = std::clamp(position.longitude, west, east - inside);
    return position;
}

} // namespace

std::optional<Point> fromPosition(GeoPosition position)
{
    if (!position.isValid() || position.latitude < -80.0 || position.latitude > 84.0)
        return std::nullopt;
    if (position.longitude == 180.0)
        position.longitude = -180.0;
    const int zone = zoneOf(position);
    const double meridian = (position.longitude - centralMeridian(zone)) * radian;
    const double conformal = conformalTangent(std::tan(position.latitude * radian));
    const Plane plane =
        corrected({std::atan2(conformal, std::cos(meridian)),
                   std::asinh(std::sin(meridian) / std::hypot(conformal, std::cos(meridian)))},
                  forward);
    return Point{zone, bandOf(position.latitude), falseEasting + scale * plane.east,
                 scale * plane.north + (position.latitude < 0.0 ? falseNorthing : 0.0)};
}

GeoPosition toPosition(int zone, bool isNorthern, double easting, double northing)
{
    const Plane plane = corrected(
        {(northing - (isNorthern ? 0.0 : falseNorthing)) / scale, (easting - falseEasting) / scale},
        backward);
    const double sineEast = std::sinh(plane.east);
    const double conformal = std::sin(plane.north) / std::hypot(sineEast, std::cos(plane.north));
    const double meridian = std::atan2(sineEast, std::cos(plane.north)) / radian;
    return {std::atan(geographicTangent(conformal)) / radian,
            std::remainder(centralMeridian(zone) + meridian, 360.0)};
}

std::optional<GeoPosition> insideOfSquare(const Point& centre, double size)
{
    constexpr double nearCorner = 0.499999; // in sizes of the square
    constexpr std::array<std::array<double, 2>, 5> places = {
        {{0, 0}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}}};
    const bool isNorthern = isNorthernBand(centre.band);
    const auto isIn = [&centre](const std::optional<Point>& point) {
        return point && point->zone == centre.zone && point->band == centre.band;
    };
    for (const auto& [east, north] : places) {
        const GeoPosition position =
            toPosition(centre.zone, isNorthern, centre.easting + east * nearCorner * size,
                       centre.northing + north * nearCorner * size);
        if (isIn(fromPosition(position)))
            return position;
    }
    // A corner of the zone may lie in the middle of the square.
    const GeoPosition nearest =
        movedInto(centre.zone, centre.band,
                  toPosition(centre.zone, isNorthern, centre.easting, centre.northing));
    const auto point = fromPosition(nearest);
    const bool isNear = isIn(point) && std::abs(point->easting - centre.easting) < size / 2 &&
                        std::abs(point->northing - centre.northing) < size / 2;
    return isNear ? std::optional(nearest) : std::nullopt;
}

} // namespace UtmGrid
