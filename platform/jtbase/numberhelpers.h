// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QLocale>
#include <QStringView>

/// Reading numbers from text, exactly or not at all.
///
/// Rules shared by all readers here:
/// - blanks (any Unicode white space) at both ends are ignored;
/// - one sign may stand in front: '+', '-' or the typographic minus U+2212;
/// - the whole remaining text must be the number; an empty text is not a number;
/// - digits are ASCII or the locale's own; base prefixes such as "0x" are not accepted;
/// - group separators are accepted only where the locale's number options allow them (see
///   QLocale::RejectGroupSeparator) and only between groups as the locale writes them;
/// - a value outside the range of the type is refused, never wrapped or cut; so is a negative text
///   for an unsigned type, except "-0".
namespace NumberHelpers {

/// Reads a `T` (signed char, unsigned char, short, unsigned short, int, unsigned int, qint64,
/// quint64 or double) from `text`.
///
/// `base` is 2 to 36 for the integer types; a double is read in base 10 only. On failure the result
/// is 0 and `*ok` false; `ok` may be null.
template <typename T>
JTBASE_EXPORT T parse(QStringView text, const QLocale& locale, bool* ok = nullptr, int base = 10);

/// The same with the rules of the C locale: decimal point, no group separators.
template <typename T>
JTBASE_EXPORT T parse(QStringView text, bool* ok = nullptr, int base = 10);

} // namespace NumberHelpers

namespace Trov {

/// Reads a decimal number as a person or a file writes it: with a point or a comma as decimal
/// separator, an optional exponent, blanks around it. A single separator is the decimal one; where
/// both occur the last one is, and the other must then stand between groups of three digits.
/// Infinity and NaN are refused. On failure the result is 0 and `*ok` false; `ok` may be null.
JTBASE_EXPORT double toDoubleEx(QStringView text, bool* ok = nullptr);

} // namespace Trov
