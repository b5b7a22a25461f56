// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <cstdint>

namespace RadioPanes {

/// The same direction as an angle from 0 to below 360 degrees; 0 for what is no finite number.
RADIOPANES_EXPORT double normalizedDegrees(double degrees);

/// A direction (clockwise from north) as seen from a ship or car that heads for `heading`: from 0
/// to below 360 degrees, clockwise from the bow.
RADIOPANES_EXPORT double relativeBearing(double bearing, double heading);

/// The smaller angle between two directions, 0 to 180 degrees.
RADIOPANES_EXPORT double angleBetween(double a, double b);

/// Where a relative bearing points.
enum class BearingSide { Ahead, Starboard, Astern, Portside };
/// Ahead and astern are the directions that are rounded to 0 and 180 degrees.
RADIOPANES_EXPORT BearingSide sideOf(double relative);

/// The direction that a signal comes from.
struct Bearing
{
    std::uint32_t id = 0;  ///< Of the signal, above 0.
    double hertz = 0;      ///< Its centre.
    double degrees = 0;    ///< Clockwise from north, 0 to below 360.
    double spread = 0;     ///< Standard deviation of the direction in degrees.
    char type = 'a';       ///< The letter of the signal type, which gives the colour.
    bool isPresent = true; ///< False for a signal that is not there at present.
};

} // namespace RadioPanes
