// SPDX-License-Identifier: MIT
#include "numberscanner_p.h"

#include "numbercharacters.h"

#include <algorithm>

using NumberCharacters::meaningOf;

namespace {

QStringView withoutLeadingMarks(QStringView text)
{
    while (!text.isEmpty() && NumberCharacters::isDirectionMark(text.front().unicode()))
        text = text.sliced(1);
    return text;
}

bool meansTheSame(char32_t a, char32_t b)
{
    const char meaning = meaningOf(a);
    return meaning != '\0' && meaning == meaningOf(b);
}

/// The first code point of a text that is not empty.
char32_t firstCodePoint(QStringView text)
{
    const QChar first = text.front();
    if (first.isHighSurrogate() && text.size() > 1 && text[1].isLowSurrogate())
        return QChar::surrogateToUcs4(first, text[1]);
    return first.unicode();
}

qsizetype unitCount(char32_t c)
{
    return QChar::requiresSurrogates(c) ? 2 : 1;
}

/// The sizes as the locale writes a long number; all 0 when it does not separate groups at all.
NumberReading::GroupSizes measuredGroups(QLocale locale)
{
    locale.setNumberOptions(QLocale::DefaultNumberOptions);
    const QString sample = locale.toString(Q_INT64_C(1111111111111111));
    const QStringList parts = sample.split(locale.groupSeparator());
    if (parts.size() < 3)
        return {};
    const auto digitCount = [&sample](const QString& part) {
        return static_cast<int>(part.size() / unitCount(firstCodePoint(sample)));
    };
    const int other = digitCount(parts.at(parts.size() - 2));
    // With 16 digits a single one is left over in front, whether the groups hold two or three.
    return {digitCount(parts.last()), other, std::max(other, digitCount(parts.first()))};
}

} // namespace

namespace NumberReading {

Notation::Notation(const QLocale* locale)
{
    if (locale == nullptr)
        return;
    const auto codePoint = [](const QString& text) {
        return text.isEmpty() ? U'\0' : firstCodePoint(text);
    };
    decimalPoint = codePoint(locale->decimalPoint());
    exponent = locale->exponential();
    if (locale->numberOptions().testFlag(QLocale::RejectGroupSeparator))
        return;
    groupSeparator = codePoint(locale->groupSeparator());
}

GroupSizes Scanner::groupSizes()
{
    if (!m_groupSizes)
        m_groupSizes = measuredGroups(*m_locale);
    return *m_groupSizes;
}

char Scanner::takeSign()
{
    QStringView text = withoutLeadingMarks(m_rest);
    if (text.isEmpty())
        return '\0';
    const char sign = meaningOf(text.front().unicode());
    if (sign != '-' && sign != '+')
        return '\0';
    m_rest = withoutLeadingMarks(text.sliced(1));
    return sign;
}

int Scanner::takeDigit(int base)
{
    if (m_rest.isEmpty())
        return -1;
    const char32_t c = firstCodePoint(m_rest);
    int value = -1;
    if (c >= U'a' && c <= U'z') {
        value = static_cast<int>(c - U'a') + 10;
    } else if (c >= U'A' && c <= U'Z') {
        value = static_cast<int>(c - U'A') + 10;
    } else if (const char digit = meaningOf(c); digit >= '0' && digit <= '9') {
        value = digit - '0';
    }
    if (value < 0 || value >= base)
        return -1;
    drop(unitCount(c));
    return value;
}

bool Scanner::takeGroupSeparator()
{
    const char32_t separator = notation().groupSeparator;
    if (m_rest.isEmpty() || separator == 0)
        return false;
    const char32_t c = firstCodePoint(m_rest);
    const bool taken =
        c == separator || (c != notation().decimalPoint && meansTheSame(c, separator));
    if (taken)
        drop(unitCount(c));
    return taken;
}

bool Scanner::takeDecimalPoint()
{
    if (m_rest.isEmpty())
        return false;
    const char32_t c = firstCodePoint(m_rest);
    const bool taken = c == notation().decimalPoint ||
                       (c != notation().groupSeparator && meansTheSame(c, notation().decimalPoint));
    if (taken)
        drop(unitCount(c));
    return taken;
}

bool Scanner::takeExponent()
{
    if (m_rest.isEmpty())
        return false;
    if (meaningOf(m_rest.front().unicode()) == 'e') {
        drop(1);
        return true;
    }
    const QString& exponent = notation().exponent;
    if (exponent.isEmpty() || !m_rest.startsWith(exponent, Qt::CaseInsensitive))
        return false;
    drop(exponent.size());
    return true;
}

} // namespace NumberReading
