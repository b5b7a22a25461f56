// SPDX-License-Identifier: MIT
#include "datetimereader_p.h"

#include "datetimesections.h"

#include <jtbase/numbercharacters.h>

#include <QRegularExpression>
#include <QStringList>
#include <QTimeZone>

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

namespace {

using DateTimeSections::Section;
using DateTimeSections::Token;

bool isDirectionMark(QChar c)
{
    return NumberCharacters::isDirectionMark(c.unicode());
}

bool isNumber(const Token& token)
{
    const bool isNamed = token.section == Section::Day || token.section == Section::Month;
    return token.section != Section::None && token.section != Section::HalfDay &&
           token.section != Section::Zone && (!isNamed || token.format.size() < 3);
}

/// Takes the text apart from the left.
class Scanner
{
public:
    Scanner(QStringView text, const QLocale& locale)
        : m_rest(text)
        , m_locale(locale)
    {}

    /// False when the text does not fit. `isFull` is set where another number follows at once.
    bool take(const Token& token, bool isFull);
    bool atEnd()
    {
        skipBlanks();
        return m_rest.isEmpty();
    }
    std::optional<int> value(Section section) const
    {
        const auto found = m_values.find(section);
        return found == m_values.end() ? std::nullopt : std::optional<int>(found->second);
    }
    bool hasShortYear() const { return m_hasShortYear; }
    QStringView zone() const { return m_zone; }

private:
    void skipBlanks();
    bool takeLiteral(QStringView literal);
    bool takeNumber(const Token& token, bool isFull);
    std::optional<qsizetype> takeName(const QStringList& names);
    bool takeMonthName();
    bool takeWeekday();
    bool takeHalfDay();
    bool takeZone();
    /// False when the section stands there twice, with different values.
    bool set(Section section, int value)
    {
        return m_values.emplace(section, value).first->second == value;
    }

    QStringView m_rest;
    const QLocale& m_locale;
    std::map<Section, int> m_values;
    bool m_hasShortYear = false;
    QStringView m_zone;
};

void Scanner::skipBlanks()
{
    while (!m_rest.isEmpty() && (m_rest.front().isSpace() || isDirectionMark(m_rest.front())))
        m_rest = m_rest.sliced(1);
}

bool Scanner::take(const Token& token, bool isFull)
{
    switch (token.section) {
    case Section::None:
        return takeLiteral(DateTimeSections::literalOf(token));
    case Section::HalfDay:
        return takeHalfDay();
    case Section::Zone:
        return takeZone();
    case Section::Month:
        return isNumber(token) ? takeNumber(token, isFull) : takeMonthName();
    case Section::Day:
        return isNumber(token) ? takeNumber(token, isFull) : takeWeekday();
    default:
        return takeNumber(token, isFull);
    }
}

bool Scanner::takeLiteral(QStringView literal)
{
    for (const QChar c : literal) {
        if (c.isSpace() || isDirectionMark(c)) {
            skipBlanks();
            continue;
        }
        skipBlanks();
        if (m_rest.isEmpty() || m_rest.front().toCaseFolded() != c.toCaseFolded())
            return false;
        m_rest = m_rest.sliced(1);
    }
    return true;
}

bool Scanner::takeNumber(const Token& token, bool isFull)
{
    skipBlanks();
    const bool isYear = token.section == Section::Year;
    const bool isFraction = token.section == Section::Millisecond;
    const qsizetype most = isYear ? token.format.size() : isFraction ? 3 : 2;
    const qsizetype least = isYear || isFull ? std::min(most, token.format.size()) : 1;
    int number = 0;
    qsizetype count = 0;
    for (; count < most && !m_rest.isEmpty(); ++count) {
        const bool isPair = m_rest.size() > 1 && m_rest[0].isHighSurrogate();
        const char32_t c =
            isPair ? QChar::surrogateToUcs4(m_rest[0], m_rest[1]) : char32_t(m_rest[0].unicode());
        if (!QChar::isDigit(c))
            break;
        number = number * 10 + QChar::digitValue(c);
        m_rest = m_rest.sliced(isPair ? 2 : 1);
    }
    if (count < least)
        return false;
    m_hasShortYear |= isYear && most == 2;
    for (; isFraction && count < most; ++count)
        number *= 10;
    return set(token.section, number);
}

std::optional<qsizetype> Scanner::takeName(const QStringList& names)
{
    skipBlanks();
    std::optional<qsizetype> found;
    qsizetype longest = 0;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names[i].size() > longest && m_rest.startsWith(names[i], Qt::CaseInsensitive)) {
            found = i;
            longest = names[i].size();
        }
    }
    m_rest = m_rest.sliced(longest);
    return found;
}

bool Scanner::takeMonthName()
{
    constexpr int months = 12;
    QStringList names;
    for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
        for (int month = 1; month <= months; ++month)
            names << m_locale.monthName(month, format);
        for (int month = 1; month <= months; ++month)
            names << m_locale.standaloneMonthName(month, format);
    }
    const std::optional<qsizetype> found = takeName(names);
    return found && set(Section::Month, static_cast<int>(*found % months) + 1);
}

bool Scanner::takeWeekday()
{
    QStringList names;
    for (int day = 1; day <= 7; ++day)
        names << m_locale.dayName(day, QLocale::LongFormat)
              << m_locale.dayName(day, QLocale::ShortFormat);
    if (!takeName(names)) {
        while (!m_rest.isEmpty() && (m_rest.front().isLetter() || m_rest.front().isMark()))
            m_rest = m_rest.sliced(1);
    }
    return true;
}

bool Scanner::takeHalfDay()
{
    const std::optional<qsizetype> found = takeName(
        {m_locale.amText(), m_locale.pmText(), QStringLiteral("AM"), QStringLiteral("PM")});
    return found && set(Section::HalfDay, static_cast<int>(*found % 2));
}

bool Scanner::takeZone()
{
    skipBlanks();
    qsizetype length = 0;
    while (length < m_rest.size() && !m_rest[length].isSpace() &&
           !isDirectionMark(m_rest[length]) && !QStringView(u"()[],;").contains(m_rest[length]))
        ++length;
    m_zone = m_rest.first(length);
    m_rest = m_rest.sliced(length);
    return true;
}

/// The date that the text tells, completed from the present one.
QDate dateOf(const Scanner& scanner, QDate present)
{
    int year = scanner.value(Section::Year).value_or(present.year());
    if (scanner.hasShortYear() && year < 100)
        year += present.year() / 100 * 100;
    const int month = scanner.value(Section::Month).value_or(present.month());
    const int lastDay = QDate(year, month, 1).daysInMonth();
    return QDate(year, month,
                 scanner.value(Section::Day).value_or(std::min(present.day(), lastDay)));
}

QTime timeOf(const Scanner& scanner, QTime present)
{
    int hour = scanner.value(Section::Hour).value_or(present.hour());
    if (const std::optional<int> half = scanner.value(Section::HalfDay)) {
        if (scanner.value(Section::Hour) && (hour < 1 || hour > 12))
            return {};
        hour = hour % 12 + 12 * *half;
    }
    return QTime(hour, scanner.value(Section::Minute).value_or(present.minute()),
                 scanner.value(Section::Second).value_or(present.second()),
                 scanner.value(Section::Millisecond).value_or(present.msec()));
}

/// The times, none to two, at which clocks in the zone of `like` show this.
std::vector<QDateTime> timesShown(QDate date, QTime time, const QDateTime& like)
{
    const QDateTime wall(date, time, Qt::UTC);
    std::vector<QDateTime> found;
    QDateTime result = like;
    for (const int days : {-1, 1}) {
        result.setMSecsSinceEpoch(wall.addDays(days).toMSecsSinceEpoch());
        result.setMSecsSinceEpoch(wall.toMSecsSinceEpoch() - result.offsetFromUtc() * 1000LL);
        if (result.date() == date && result.time() == time &&
            (found.empty() || found.front() != result))
            found.push_back(result);
    }
    return found;
}

QDateTime withOffset(const std::vector<QDateTime>& times, int offset)
{
    for (const QDateTime& time : times) {
        if (time.offsetFromUtc() == offset)
            return time;
    }
    return times.empty() ? QDateTime() : times.front();
}

/// Those of the times at which the zone has the name.
std::vector<QDateTime> named(std::vector<QDateTime> times, QStringView zone)
{
    std::erase_if(times, [zone](const QDateTime& time) {
        return zone.compare(time.timeZoneAbbreviation(), Qt::CaseInsensitive) != 0;
    });
    return times;
}

/// The seconds that the zone is ahead of UTC, where its name tells them.
std::optional<int> offsetOf(const QString& zone)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(?:UTC|GMT)?([+\u2212-])(\\d{1,2})(?::?(\\d{2}))?$"),
        QRegularExpression::CaseInsensitiveOption);
    for (const char* name : {"UTC", "GMT", "Z"}) {
        if (zone.compare(QLatin1StringView(name), Qt::CaseInsensitive) == 0)
            return 0;
    }
    const QRegularExpressionMatch match = pattern.match(zone);
    if (!match.hasMatch())
        return std::nullopt;
    const int minutes = match.capturedView(2).toInt() * 60 + match.capturedView(3).toInt();
    constexpr int mostMinutes = 14 * 60;
    if (minutes > mostMinutes)
        return std::nullopt;
    return (match.capturedView(1) == u"+" ? 60 : -60) * minutes;
}

/// The time in a zone that is not the present one.
QDateTime inForeignZone(QDate date, QTime time, const QString& zone)
{
    if (const std::optional<int> offset = offsetOf(zone))
        return *offset == 0 ? QDateTime(date, time, Qt::UTC)
                            : QDateTime(date, time, Qt::OffsetFromUTC, *offset);
    const QDateTime local = QDateTime::currentDateTime();
    if (zone.contains(u'/')) {
        const QTimeZone known(zone.toLatin1());
        return known.isValid() ? withOffset(timesShown(date, time, local.toTimeZone(known)), 0)
                               : QDateTime();
    }
    return withOffset(named(timesShown(date, time, local), zone), 0);
}

} // namespace

QDateTime DateTimeReader::read(const QString& text, const QString& format, const QDateTime& present,
                               const QLocale& locale)
{
    Scanner scanner(text, locale);
    const std::vector<Token> tokens = DateTimeSections::tokensOf(format);
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (!scanner.take(tokens[i], i + 1 < tokens.size() && isNumber(tokens[i + 1])))
            return {};
    }
    const QDate date = dateOf(scanner, present.date());
    const QTime time = timeOf(scanner, present.time());
    if (!scanner.atEnd() || !date.isValid() || !time.isValid())
        return {};
    const std::vector<QDateTime> times = timesShown(date, time, present);
    if (scanner.zone().isEmpty())
        return withOffset(times, present.offsetFromUtc());
    const std::vector<QDateTime> meant = named(times, scanner.zone());
    if (!meant.empty())
        return withOffset(meant, present.offsetFromUtc());
    if (scanner.zone().compare(present.timeZoneAbbreviation(), Qt::CaseInsensitive) == 0)
        return withOffset(times, present.offsetFromUtc());
    return inForeignZone(date, time, scanner.zone().toString());
}
