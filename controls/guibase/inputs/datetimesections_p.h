// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

/// Finds and steps the section of a written date-time (year, minute, ...) that a cursor stands in.
namespace DateTimeSections {

enum class Section { None, Year, Month, Day, HalfDay, Hour, Minute, Second, Millisecond };

/// The section of `text` at or nearest before the cursor, else the first one. `text` is what
/// `locale` writes for `time` in the format; Day when the text is anything else.
Section at(const QString& text, qsizetype cursor, const QDateTime& time, const QString& format,
           const QLocale& locale);
/// Invalid where no date has the result.
QDateTime stepped(const QDateTime& time, Section section, qint64 steps);

} // namespace DateTimeSections
