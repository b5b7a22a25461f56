// SPDX-License-Identifier: MIT
#include "realnumberdisplayformat.h"

#include "numbertext_p.h"
#include "typednumber_p.h"

#include <jtbase/numberhelpers.h>

#include <optional>

namespace {

std::optional<double> readReal(const QString& text, const QLocale& locale, bool useLocale,
                               QChar decimalPoint)
{
    // With a locale the point may part groups.
    if (!useLocale || decimalPoint == u'.' || !text.contains(u'.')) {
        if (const std::optional<double> value = TypedNumber::readPlain<double>(text))
            return value;
    }
    bool ok = false;
    double value = useLocale ? NumberHelpers::parse<double>(text, locale, &ok)
                             : NumberHelpers::parse<double>(text, &ok);
    if (ok && !(useLocale && TypedNumber::hasZeroGroup(text, locale)))
        return value;
    // What is written in the locale can be read in any case.
    value = NumberHelpers::parse<double>(text, locale, &ok);
    if (ok && !TypedNumber::hasZeroGroup(text, locale))
        return value;
    TypedNumber::Ascii ascii;
    TypedNumber::Outcome outcome = TypedNumber::normalize(text, decimalPoint, ascii);
    if (outcome == TypedNumber::Outcome::Ambiguous && text.contains(u'.') &&
        locale.groupSeparator() != u"." && decimalPoint != u'.')
        outcome = TypedNumber::normalize(text, u'.', ascii);
    if (outcome != TypedNumber::Outcome::Number)
        return std::nullopt;
    return TypedNumber::realFromAscii(ascii);
}

} // namespace

template <typename T>
RealNumberDisplayFormat<T>::RealNumberDisplayFormat() = default;

template <typename T>
RealNumberDisplayFormat<T>::~RealNumberDisplayFormat() = default;

template <typename T>
std::unique_ptr<ValueDisplayFormatBase<T>> RealNumberDisplayFormat<T>::clone() const
{
    return std::make_unique<RealNumberDisplayFormat<T>>(*this);
}

template <typename T>
T RealNumberDisplayFormat<T>::valueFromText(const QString& text, bool* ok) const
{
    const std::optional<double> value =
        readReal(text, this->locale(), this->useLocale(), this->notation().decimalPoint);
    if (ok != nullptr)
        *ok = value.has_value();
    return value.value_or(0.0);
}

template <typename T>
QString RealNumberDisplayFormat<T>::textFromValue(T value) const
{
    return NumberText::ofReal(value, this->locale(), this->notation(), this->format(),
                              this->precision(), this->showPlus());
}

template <typename T>
QString RealNumberDisplayFormat<T>::refusalReason(const QString& text) const
{
    const QChar point = this->notation().decimalPoint;
    if (const auto meanings = TypedNumber::meaningsOf(text, point))
        return TypedNumber::ambiguityReason(meanings->decimal, meanings->whole);
    return TypedNumber::refusalReason(text, QStringLiteral("12") + point + u'5');
}

template <typename T>
std::vector<T> RealNumberDisplayFormat<T>::widestValues(const T& minimum, const T& maximum) const
{
    std::vector<T> values{minimum, maximum};
    const bool hasFixedDecimals =
        this->format() != 'g' && this->format() != 'G' && this->precision() >= -1;
    if (hasFixedDecimals)
        return values;
    // The longest texts without an exponent begin with four zeros.
    constexpr double longText = 1.2345678901234567e-4;
    for (const T& value : {minimum / 3, maximum / 3, -longText, longText}) {
        if (value >= minimum && value <= maximum)
            values.push_back(value);
    }
    return values;
}

template class RealNumberDisplayFormat<double>;
