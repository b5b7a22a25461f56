// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// The digit of a written number that a cursor stands at, as two numbers of the same length: their
/// difference is what one step of this digit is worth.
struct DigitAtCursor
{
    QString one;  ///< The number with 1 in place of the digit, and 0 for all others: "-0100.00".
    QString zero; ///< The number with 0 for all digits.

    /// The digit behind the cursor or, where there is none, the nearest one before it, else the
    /// first one. `bare` is a number in `base` without prefix and suffix; nothing without digits.
    /// Exponents of decimal numbers have no steps. `groupSeparator` (may be empty) is left out of
    /// both results, since no group may begin with zeros.
    static std::optional<DigitAtCursor> find(const QString& bare, qsizetype cursor, int base,
                                             const QString& groupSeparator = {});
};
