// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QLocale>
#include <QStringView>

/// Reading numbers from text, exactly or not at all: a value outside the range of the type is
/// refused, never wrapped, cut or turned to infinity. Blanks at both ends do not matter; digits of
/// any script are read. Which texts are numbers: docs/decisions/0005-texts-that-are-numbers.md.
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
/// both occur the last one is, and the other must then stand between groups of three digits; where
/// one occurs several times, and alone, it must part groups of three digits. Characters that mean
/// the same in numbers are read alike (see NumberCharacters). Infinity, NaN and values that a
/// double cannot hold are refused. On failure the result is 0 and `*ok` false; `ok` may be null.
JTBASE_EXPORT double toDoubleEx(QStringView text, bool* ok = nullptr);

} // namespace Trov
