// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

#include <vector>

/// Knows the sections (year, minute, ...) of date-time formats; finds and steps the one that a
/// cursor stands in.
namespace DateTimeSections {

enum class Section { None, Year, Month, Day, HalfDay, Hour, Minute, Second, Millisecond, Zone };

/// A run of a format that is written as one piece.
struct Token
{
    QString format;
    Section section; ///< Day for weekdays ("ddd") as well.
};
std::vector<Token> tokensOf(const QString& format);
/// What a token without section stands for.
QString literalOf(const Token& token);

/// The section of `text` at or nearest before the cursor, else the first one. `text` is what
/// `locale` writes for `time` in the format; Day when the text is anything else.
Section at(const QString& text, qsizetype cursor, const QDateTime& time, const QString& format,
           const QLocale& locale);
/// Invalid where no date has the result.
QDateTime stepped(const QDateTime& time, Section section, qint64 steps);

} // namespace DateTimeSections
