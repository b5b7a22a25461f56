// SPDX-License-Identifier: MIT
#include "displayformattext.h"

#include <algorithm>

namespace {

qsizetype skipBlanks(const QString& text, qsizetype start)
{
    while (start < text.size() && text[start].isSpace())
        ++start;
    return start;
}

qsizetype dropBlanks(const QString& text, qsizetype end)
{
    while (end > 0 && text[end - 1].isSpace())
        --end;
    return end;
}

/// A locale that neither writes nor accepts group separators.
QLocale ungrouped()
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

} // namespace

LocaleNotation::LocaleNotation(const QLocale& locale)
{
    const QString point = locale.decimalPoint();
    decimalPoint = point.isEmpty() ? QChar(u'.') : point.front();
    isPlain =
        point.size() == 1 &&
        locale.numberOptions() == (QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator) &&
        locale.zeroDigit() == u"0" && locale.negativeSign() == u"-";
}

DisplayFormatText::DisplayFormatText()
    : m_locale(ungrouped())
    , m_notation(m_locale)
{}

DisplayFormatText::DisplayFormatText(const DisplayFormatText& other) = default;
DisplayFormatText& DisplayFormatText::operator=(const DisplayFormatText& other) = default;
DisplayFormatText::~DisplayFormatText() = default;

QString DisplayFormatText::withAffixes(const QString& bare) const
{
    if (prefix().isEmpty() && suffix().isEmpty())
        return bare;
    QString text;
    text.reserve(prefix().size() + bare.size() + suffix().size() + 2);
    if (!prefix().isEmpty())
        text.append(prefix()).append(u' ');
    text.append(bare);
    if (!suffix().isEmpty())
        text.append(u' ').append(suffix());
    return text;
}

DisplayAffix::Match DisplayFormatText::suffixMatch(const QString& text) const
{
    return m_suffix.matchEndingAt(text, dropBlanks(text, text.size()));
}

DisplayFormatText::Range DisplayFormatText::bareRange(const QString& text) const
{
    qsizetype start = skipBlanks(text, 0);
    if (const DisplayAffix::Match match = m_prefix.matchAt(text, start))
        start = skipBlanks(text, start + match.length);
    qsizetype end = dropBlanks(text, text.size());
    if (const DisplayAffix::Match match = m_suffix.matchEndingAt(text, end))
        end = dropBlanks(text, match.start);
    return {start, std::max(start, end)};
}

void DisplayFormatText::setLocale(const QLocale& locale)
{
    m_locale = locale;
    m_notation = LocaleNotation(locale);
}
