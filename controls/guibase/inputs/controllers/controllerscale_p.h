// SPDX-License-Identifier: MIT
#pragma once

/// The numbers of a controller: its range and its two sizes of steps.
struct ControllerScale
{
    static constexpr int pageSteps = 10;
    static constexpr int wholeRange = 100'000; ///< Of the toolkit's numbers; finer than pixels.

    double minimum = 0;
    double maximum = 100;
    double step = 1;
    double fineStep = 0; ///< 0 stands for a tenth of the step.

    /// Takes finite bounds in any order; false when that changes nothing.
    bool setRange(double first, double second);
    double stepSize(bool isFine) const;
    double clamped(double value) const;
    /// So many steps further, as on paper: 0.1 + 0.2 is 0.3. Not beyond the range.
    double stepped(double value, int steps, bool isFine) const;
    /// The nearest multiple of the step, or the bound that is nearer.
    double rounded(double value, bool isFine) const;
    /// 0 at the minimum, 1 at the maximum; 0 in a range without width.
    double fractionOf(double value) const;
    /// The same from 0 to `wholeRange`.
    int wholeOf(double value) const;
    /// How far the value moves with this part of the range.
    double widthOf(double fraction) const;
    /// As many as a fine step has.
    int decimals() const;
};
