// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <QString>

#include <functional>
#include <vector>

namespace RadioPanes {

/// A part of an axis and the pixels it is drawn on. Value `low` lies at pixel 0, `high` at
/// `pixels`.
struct RADIOPANES_EXPORT AxisRange
{
    /// In units of the axis.
    double low = 0;
    double high = 0;
    int pixels = 0;

    /// Finite, with high above low and at least one pixel.
    bool isValid() const;
    double positionOf(double value) const;
    double valueAt(double position) const;
    bool operator==(const AxisRange&) const = default;
};

/// One labelled tick of an axis.
struct AxisTick
{
    /// In units of the axis.
    double value = 0;
    double position = 0; ///< Pixels from the low end of the axis.
    /// Empty for a tick without a text.
    QString label;
};

/// The smallest number of the form 1, 2 or 5 times a power of ten that is at least `minimum`;
/// 0 when `minimum` is not a positive finite number.
RADIOPANES_EXPORT double niceStep(double minimum);

/// Ticks at multiples of a 1-2-5 step. The step is the smallest one that is at least
/// `smallestStep`, and whose labels all fit: `extentOf` tells the pixels that a label takes along
/// the axis, and `gap` pixels stay free between two of them. Labels that would stick out of the
/// axis by more than `overhang` pixels are left out, with their ticks. Empty for an invalid range.
RADIOPANES_EXPORT std::vector<AxisTick>
layoutTicks(const AxisRange& range, double smallestStep, int gap, int overhang,
            const std::function<QString(double)>& labelOf,
            const std::function<int(const QString&)>& extentOf);

} // namespace RadioPanes
