// SPDX-License-Identifier: MIT
#include "bearing.h"

#include <algorithm>
#include <cmath>

namespace RadioPanes {

namespace {
constexpr double fullCircle = 360;
constexpr double halfCircle = 180;
} // namespace

double normalizedDegrees(double degrees)
{
    if (!std::isfinite(degrees))
        return 0;
    const double rest = std::fmod(degrees, fullCircle);
    const double positive = rest < 0 ? rest + fullCircle : rest;
    // A tiny negative angle is rounded up to the full circle.
    return positive < fullCircle ? positive : 0;
}

double relativeBearing(double bearing, double heading)
{
    return normalizedDegrees(bearing - heading);
}

double angleBetween(double a, double b)
{
    const double difference = normalizedDegrees(a - b);
    return std::min(difference, fullCircle - difference);
}

BearingSide sideOf(double relative)
{
    const double rounded = normalizedDegrees(std::round(normalizedDegrees(relative)));
    if (rounded == 0)
        return BearingSide::Ahead;
    if (rounded == halfCircle)
        return BearingSide::Astern;
    return rounded < halfCircle ? BearingSide::Starboard : BearingSide::Portside;
}

} // namespace RadioPanes
