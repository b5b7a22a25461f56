// SPDX-License-Identifier: MIT
#include "valuedisplayformatbase.h"

#include <QCoreApplication>

#include <cmath>
#include <type_traits>

namespace {

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

} // namespace

template <typename T>
ValueDisplayFormatBase<T>::ValueDisplayFormatBase()
    : m_valueConverter([](T value, ConversionMode) { return value; })
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
    return withAffixes(textFromValue(m_valueConverter(value, ToDisplay)));
}

template <typename T>
T ValueDisplayFormatBase<T>::valueFromFullText(const QString& text, bool* ok) const
{
    const Range range = bareRange(text);
    bool read = false;
    T value{};
    if (!isSuffixRequired() || suffixMatch(text))
        value = valueFromText(text.mid(range.start, range.end - range.start), &read);
    if (read) {
        value = m_valueConverter(value, FromDisplay);
        read = isUsable(value);
    }
    if (ok != nullptr)
        *ok = read;
    return read ? value : T();
}

#define INSTANTIATE(T) template class ValueDisplayFormatBase<T>;
GUIBASE_FOR_EACH_INPUT_TYPE(INSTANTIATE)
#undef INSTANTIATE
