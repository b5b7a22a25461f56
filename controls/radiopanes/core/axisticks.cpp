// SPDX-License-Identifier: MIT
#include "axisticks.h"

#include <cmath>

namespace RadioPanes {

namespace {

// No axis of a screen holds more ticks than this, whatever the numbers say.
constexpr int maximumTicks = 1000;
constexpr int smallestTickDistance = 8;

std::vector<AxisTick> ticksAt(const AxisRange& range, double step,
                              const std::function<QString(double)>& labelOf)
{
    std::vector<AxisTick> ticks;
    const double first = std::ceil(range.low / step - 1e-6);
    const double last = std::floor(range.high / step + 1e-6);
    if (!(first <= last && last - first < maximumTicks))
        return ticks;
    // Far from zero a multiple and the next one may be the same number, so they are counted.
    const auto count = static_cast<int>(last - first) + 1;
    for (int i = 0; i < count; ++i) {
        const double value = (first + i) * step + 0.0; // adding zero turns -0 into 0
        ticks.push_back({value, range.positionOf(value), labelOf(value)});
    }
    return ticks;
}

bool labelsFit(const std::vector<AxisTick>& ticks, int gap,
               const std::function<int(const QString&)>& extentOf)
{
    for (size_t i = 1; i < ticks.size(); ++i) {
        const double distance = ticks[i].position - ticks[i - 1].position;
        const int needed = (extentOf(ticks[i].label) + extentOf(ticks[i - 1].label) + 1) / 2 + gap;
        if (distance < needed)
            return false;
    }
    return true;
}

} // namespace

bool AxisRange::isValid() const
{
    return std::isfinite(low) && std::isfinite(high) && high > low && std::isfinite(high - low) &&
           pixels > 0;
}

double AxisRange::positionOf(double value) const
{
    return (value - low) / (high - low) * pixels;
}

double AxisRange::valueAt(double position) const
{
    return low + position / pixels * (high - low);
}

double niceStep(double minimum)
{
    if (!(minimum > 0) || !std::isfinite(minimum))
        return 0;
    const double decade = std::pow(10, std::floor(std::log10(minimum)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        // A step that is reached but for rounding counts as reached.
        if (factor * decade >= minimum * (1 - 1e-9))
            return factor * decade;
    }
    return 10 * decade;
}

std::vector<AxisTick> layoutTicks(const AxisRange& range, double smallestStep, int gap,
                                  int overhang, const std::function<QString(double)>& labelOf,
                                  const std::function<int(const QString&)>& extentOf)
{
    if (!range.isValid())
        return {};
    const double span = range.high - range.low;
    double step = niceStep(std::max(smallestStep, span / range.pixels * smallestTickDistance));
    std::vector<AxisTick> ticks = ticksAt(range, step, labelOf);
    while (ticks.size() > 1 && !labelsFit(ticks, gap, extentOf)) {
        step = niceStep(step * 1.5);
        ticks = ticksAt(range, step, labelOf);
    }
    // Asked this way round, what is no number goes too: a step may be too large for one.
    std::erase_if(ticks, [&](const AxisTick& tick) {
        const double half = extentOf(tick.label) / 2.0;
        return !(tick.position - half >= -overhang &&
                 tick.position + half <= range.pixels + overhang);
    });
    return ticks;
}

} // namespace RadioPanes
