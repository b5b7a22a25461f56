// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/valuedisplayformatbase.h>

#include <QString>

/// Writes numbers as QLocale does, several times faster where the locale has nothing special.
namespace NumberText {

/// The text of QLocale::toString(value, format, precision), with a plus sign in front of positive
/// numbers on request.
QString ofReal(double value, const QLocale& locale, const LocaleNotation& notation, char format,
               int precision, bool showPlus);
/// The text of QLocale::toString(value) for base 10, else that of QString::number(value, base).
/// `T` is qint64 or quint64.
template <typename T>
QString ofInteger(T value, const QLocale& locale, const LocaleNotation& notation, int base,
                  bool showPlus);

} // namespace NumberText
