// SPDX-License-Identifier: MIT
#include "valuedisplayformatbase.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <type_traits>

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

template <typename T>
bool isUsable(const T& value)
{
    if constexpr (std::is_same_v<T, double>)
        return std::isfinite(value);
    else if constexpr (std::is_same_v<T, QDateTime>)
        return value.isValid();
    else
        return true;
}

template <typename T>
T exampleValue()
{
    if constexpr (std::is_same_v<T, QDateTime>)
        return QDateTime::currentDateTime();
    else
        return T(1);
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

template <typename T>
ValueDisplayFormatBase<T>::ValueDisplayFormatBase()
    : m_locale(ungrouped())
    , m_notation(m_locale)
    , m_valueConverter([](T value, ConversionMode) { return value; })
{}

template <typename T>
ValueDisplayFormatBase<T>::ValueDisplayFormatBase(const ValueDisplayFormatBase& other) = default;

template <typename T>
ValueDisplayFormatBase<T>&
ValueDisplayFormatBase<T>::operator=(const ValueDisplayFormatBase& other) = default;

template <typename T>
ValueDisplayFormatBase<T>::~ValueDisplayFormatBase() = default;

template <typename T>
QString ValueDisplayFormatBase<T>::refusalReason(const QString&) const
{
    return QCoreApplication::translate("DisplayFormat",
                                       "This cannot be read. Type it as in \"%1\".")
        .arg(textFromValue(exampleValue<T>()));
}

template <typename T>
std::vector<T> ValueDisplayFormatBase<T>::widestValues(const T& minimum, const T& maximum) const
{
    return {minimum, maximum};
}

template <typename T>
QString ValueDisplayFormatBase<T>::fullTextFromValue(const T& value) const
{
    const QString bare = textFromValue(m_valueConverter(value, ToDisplay));
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

template <typename T>
T ValueDisplayFormatBase<T>::valueFromFullText(const QString& text, bool* ok) const
{
    const Range range = bareRange(text);
    bool read = false;
    T value{};
    if (!m_suffixRequired || suffixMatch(text))
        value = valueFromText(text.mid(range.start, range.end - range.start), &read);
    if (read) {
        value = m_valueConverter(value, FromDisplay);
        read = isUsable(value);
    }
    if (ok != nullptr)
        *ok = read;
    return read ? value : T();
}

template <typename T>
DisplayAffix::Match ValueDisplayFormatBase<T>::suffixMatch(const QString& text) const
{
    return m_suffix.matchEndingAt(text, dropBlanks(text, text.size()));
}

template <typename T>
typename ValueDisplayFormatBase<T>::Range
ValueDisplayFormatBase<T>::bareRange(const QString& text) const
{
    qsizetype start = skipBlanks(text, 0);
    if (const DisplayAffix::Match match = m_prefix.matchAt(text, start))
        start = skipBlanks(text, start + match.length);
    qsizetype end = dropBlanks(text, text.size());
    if (const DisplayAffix::Match match = m_suffix.matchEndingAt(text, end))
        end = dropBlanks(text, match.start);
    return {start, std::max(start, end)};
}

template <typename T>
void ValueDisplayFormatBase<T>::setLocale(const QLocale& locale)
{
    m_locale = locale;
    m_notation = LocaleNotation(locale);
}

#define INSTANTIATE(T) template class ValueDisplayFormatBase<T>;
GUIBASE_FOR_EACH_INPUT_TYPE(INSTANTIATE)
#undef INSTANTIATE
