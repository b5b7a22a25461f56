// SPDX-License-Identifier: MIT
#include "controllerscale_p.h"

#include <guibase/inputs/steparithmetic.h>

#include <algorithm>
#include <cmath>

bool ControllerScale::setRange(double first, double second)
{
    const auto [low, high] = std::minmax({first, second});
    if (!std::isfinite(first) || !std::isfinite(second) || (low == minimum && high == maximum))
        return false;
    minimum = low;
    maximum = high;
    return true;
}

double ControllerScale::stepSize(bool isFine) const
{
    constexpr double finePart = 10;
    if (!isFine)
        return step;
    if (fineStep > 0)
        return fineStep;
    return StepArithmetic::withDecimals(step / finePart, StepArithmetic::decimalsOf(step) + 1);
}

double ControllerScale::clamped(double value) const
{
    return std::clamp(value, minimum, maximum);
}

double ControllerScale::stepped(double value, int steps, bool isFine) const
{
    const auto result = StepArithmetic::stepped(value, steps, stepSize(isFine));
    return result ? clamped(*result) : steps < 0 ? minimum : maximum;
}

double ControllerScale::rounded(double value, bool isFine) const
{
    const double within = clamped(value);
    const double multiple = clamped(StepArithmetic::nearestMultiple(within, stepSize(isFine)));
    for (const double bound : {minimum, maximum}) {
        if (std::abs(bound - within) < std::abs(multiple - within))
            return bound;
    }
    return multiple;
}

double ControllerScale::fractionOf(double value) const
{
    // Halves, since the width may be more than a double can hold.
    const double width = maximum / 2 - minimum / 2;
    return width > 0 ? (clamped(value) / 2 - minimum / 2) / width : 0;
}

int ControllerScale::wholeOf(double value) const
{
    return static_cast<int>(std::lround(fractionOf(value) * wholeRange));
}

double ControllerScale::widthOf(double fraction) const
{
    return fraction * maximum - fraction * minimum;
}

int ControllerScale::decimals() const
{
    return StepArithmetic::decimalsOf(stepSize(true));
}
