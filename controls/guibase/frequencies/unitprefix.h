// SPDX-License-Identifier: MIT
#pragma once

/// The unit prefixes that frequencies are shown with. Users write SuffixedDouble::ESuffix and
/// SuffixedDouble::Mega; the enumeration stands here so that the services need no more than it.
namespace UnitPrefix {

enum ESuffix : int {
    NoSuffix = 0, ///< No unit.
    BaseUnit = 1, ///< The unit itself, such as Hz.
    Kilo = 2,
    Mega = 3,
    Giga = 4,
};

} // namespace UnitPrefix
