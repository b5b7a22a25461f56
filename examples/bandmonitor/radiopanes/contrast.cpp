// SPDX-License-Identifier: MIT
#include "radiopanes/contrast.h"

#include <algorithm>
#include <cmath>

namespace bandmonitor {

namespace {

/// A component of the colour space sRGB as a share of light.
double linear(float component)
{
    const double value = static_cast<double>(component);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

double contrastRatio(const QColor& a, const QColor& b)
{
    const auto [dark, bright] = std::minmax({luminance(a), luminance(b)});
    return (bright + 0.05) / (dark + 0.05);
}

QColor readableOn(const QColor& background, const QColor& wanted, double ratio)
{
    if (contrastRatio(background, wanted) >= ratio)
        return wanted;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return contrastRatio(background, black) > contrastRatio(background, white) ? black : white;
}

} // namespace bandmonitor
