// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

/// Reads dates and times that people have typed over a text of QLocale::toString(QDateTime,
/// QString).
namespace DateTimeReader {

/// The time that the text tells; invalid where the text does not fit the format. Sections that the
/// format does not show, and the century of years of two digits, are those of `present`; so is the
/// zone where none is told. Where clocks show a time twice, the offset of `present` decides.
///
/// Zones are the abbreviation of the zone of `present` or of local time, UTC, an offset ("+02:00",
/// "UTC-5"), or "Europe/Berlin"; that of `present` may stay behind when summer is typed over
/// winter. Digits may be of any script. Weekdays, case, missing blanks and leading zeros do not
/// matter.
QDateTime read(const QString& text, const QString& format, const QDateTime& present,
               const QLocale& locale);

} // namespace DateTimeReader
