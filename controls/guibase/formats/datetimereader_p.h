// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

/// Reads dates and times that people have typed over a text of QLocale::toString(QDateTime,
/// QString).
namespace DateTimeReader {

/// The time that the text tells; invalid where the text does not fit the format.
///
/// Sections that the format does not show, and the century of years of two digits, are those of
/// `present`. Without a zone the text is one in the zone of `present`; where clocks show a time
/// twice, the offset of `present` decides, else the first one is meant. Zones are the abbreviation
/// of this zone or of local time at the time told, that of `present` itself (which stays behind
/// when summer is typed over winter), UTC, an offset ("+02:00", "UTC-5"), or "Europe/Berlin".
///
/// Weekdays, case, marks of direction and missing blanks do not matter. Digits may be of any
/// script, and leading zeros may be left out where no digit follows.
QDateTime read(const QString& text, const QString& format, const QDateTime& present,
               const QLocale& locale);

} // namespace DateTimeReader
