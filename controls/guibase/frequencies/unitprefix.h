// SPDX-License-Identifier: MIT
#pragma once

/// The unit prefixes that frequencies are shown with. Applications write SuffixedDouble::ESuffix
/// and SuffixedDouble::Mega. The enumeration has a header of its own for the services, which need
/// nothing else of SuffixedDouble.
namespace UnitPrefix {

/// The numbers are those that are stored.
enum ESuffix : int {
    NoSuffix = 0, ///< No unit.
    BaseUnit = 1, ///< The unit itself, such as Hz.
    Kilo = 2,
    Mega = 3,
    Giga = 4,
};

} // namespace UnitPrefix
