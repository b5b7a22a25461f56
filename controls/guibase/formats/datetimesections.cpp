// SPDX-License-Identifier: MIT
#include "datetimesections.h"

#include <algorithm>

namespace {

using DateTimeSections::Section;
using DateTimeSections::Token;

struct Letter
{
    char16_t letter;
    Section section;
    qsizetype longest;
};

constexpr Letter letters[] = {
    {u'y', Section::Year, 4},   {u'M', Section::Month, 4},       {u'd', Section::Day, 4},
    {u'h', Section::Hour, 2},   {u'H', Section::Hour, 2},        {u'm', Section::Minute, 2},
    {u's', Section::Second, 2}, {u'z', Section::Millisecond, 3}, {u't', Section::Zone, 4},
};

qsizetype runLength(const QString& format, qsizetype start, qsizetype longest)
{
    qsizetype length = 1;
    while (length < longest && start + length < format.size() &&
           format[start + length] == format[start])
        ++length;
    return length;
}

/// The length of a quoted text with its quotes; two quotes in a row are one quote of the text.
qsizetype quotedLength(const QString& format, qsizetype start)
{
    qsizetype i = start + 1;
    while (i < format.size()) {
        if (format[i] != u'\'') {
            ++i;
        } else if (i > start + 1 && i + 1 < format.size() && format[i + 1] == u'\'') {
            i += 2;
        } else {
            return i + 1 - start;
        }
    }
    return format.size() - start;
}

Token tokenAt(const QString& format, qsizetype start)
{
    const QChar c = format[start];
    if (c == u'\'')
        return {format.mid(start, quotedLength(format, start)), Section::None};
    if (c.toLower() == u'a') {
        const bool isPair = start + 1 < format.size() && format[start + 1].toLower() == u'p';
        return {format.mid(start, isPair ? 2 : 1), Section::HalfDay};
    }
    for (const Letter& letter : letters) {
        if (c != letter.letter)
            continue;
        const qsizetype length = runLength(format, start, letter.longest);
        if (letter.section != Section::Year)
            return {format.mid(start, length), letter.section};
        // Years have two or four digits.
        return {format.mid(start, length == 3 ? 2 : length),
                length == 1 ? Section::None : Section::Year};
    }
    return {QString(c), Section::None};
}

/// How the token is written; hours need to know of the half of the day.
QString written(const Token& token, const QDateTime& time, bool hasHalves, const QLocale& locale)
{
    if (!hasHalves || token.section != Section::Hour)
        return locale.toString(time, token.format);
    const QString text = locale.toString(time, token.format + QStringLiteral("|AP"));
    return text.left(text.indexOf(u'|'));
}

} // namespace

std::vector<DateTimeSections::Token> DateTimeSections::tokensOf(const QString& format)
{
    std::vector<Token> tokens;
    for (qsizetype i = 0; i < format.size(); i += tokens.back().format.size())
        tokens.push_back(tokenAt(format, i));
    return tokens;
}

QString DateTimeSections::literalOf(const Token& token)
{
    const QString& format = token.format;
    if (!format.startsWith(u'\''))
        return format;
    if (format.size() == 2)
        return QStringLiteral("'");
    const bool isClosed = format.size() > 1 && format.endsWith(u'\'');
    return format.mid(1, format.size() - (isClosed ? 2 : 1))
        .replace(QStringLiteral("''"), QStringLiteral("'"));
}

DateTimeSections::Section DateTimeSections::at(const QString& text, qsizetype cursor,
                                               const QDateTime& time, const QString& format,
                                               const QLocale& locale)
{
    const std::vector<Token> tokens = tokensOf(format);
    const bool hasHalves = std::any_of(tokens.begin(), tokens.end(), [](const Token& token) {
        return token.section == Section::HalfDay;
    });
    Section found = Section::None;
    QString all;
    for (const Token& token : tokens) {
        const bool isReached = all.size() <= cursor;
        const bool hasSteps = token.section != Section::None && token.section != Section::Zone;
        if (hasSteps && (isReached || found == Section::None))
            found = token.section;
        all += written(token, time, hasHalves, locale);
    }
    return all == text && found != Section::None ? found : Section::Day;
}

QDateTime DateTimeSections::stepped(const QDateTime& time, Section section, qint64 steps)
{
    constexpr qint64 millisecondsPerHour = 3'600'000;
    const auto count = static_cast<int>(steps);
    switch (section) {
    case Section::Year:
        return time.addYears(count);
    case Section::Month:
        return time.addMonths(count);
    case Section::HalfDay:
        return time.addMSecs(steps * 12 * millisecondsPerHour);
    case Section::Hour:
        return time.addMSecs(steps * millisecondsPerHour);
    case Section::Minute:
        return time.addMSecs(steps * 60'000);
    case Section::Second:
        return time.addMSecs(steps * 1000);
    case Section::Millisecond:
        return time.addMSecs(steps);
    case Section::None:
    case Section::Zone:
    case Section::Day:
        break;
    }
    return time.addDays(steps);
}
