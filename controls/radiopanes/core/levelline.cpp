// SPDX-License-Identifier: MIT
#include "levelline.h"

#include <algorithm>
#include <cmath>

namespace RadioPanes {

namespace {

/// The level of the line at a frequency between its first and its last point. `next` is the first
/// point behind the frequency asked for before, and moves on.
double lineAt(std::span<const LevelPoint> points, double hertz, std::size_t& next)
{
    while (next + 1 < points.size() && points[next].hertz <= hertz)
        ++next;
    const LevelPoint& from = points[next - 1];
    const LevelPoint& to = points[next];
    if (to.hertz <= from.hertz)
        return to.levelDb;
    return from.levelDb +
           (to.levelDb - from.levelDb) * (hertz - from.hertz) / (to.hertz - from.hertz);
}

std::optional<double> firstAboveIn(const Segment& segment, std::span<const LevelPoint> points)
{
    const auto binOf = [&](double hertz) {
        const double bin = (hertz - segment.startHz) / segment.stepHz;
        return static_cast<std::size_t>(
            std::clamp(bin, 0.0, static_cast<double>(segment.levels.size())));
    };
    std::size_t next = 1;
    for (std::size_t bin = binOf(points.front().hertz); bin < segment.levels.size(); ++bin) {
        const double hertz = segment.startHz + (static_cast<double>(bin) + 0.5) * segment.stepHz;
        const double place = std::clamp(hertz, points.front().hertz, points.back().hertz);
        if (std::abs(hertz - place) > segment.stepHz / 2) {
            if (hertz > place)
                break;
            continue;
        }
        const double limit =
            points.size() == 1 ? points.front().levelDb : lineAt(points, place, next);
        if (static_cast<double>(segment.levels[bin]) > limit) // no level is never above
            return hertz;
    }
    return std::nullopt;
}

} // namespace

std::optional<double> firstAbove(const Sweep& sweep, std::span<const LevelPoint> points)
{
    if (points.empty())
        return std::nullopt;
    for (const Segment& segment : sweep.segments) {
        if (const auto found = firstAboveIn(segment, points))
            return found;
    }
    return std::nullopt;
}

} // namespace RadioPanes
