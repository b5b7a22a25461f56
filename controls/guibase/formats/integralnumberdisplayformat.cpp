// SPDX-License-Identifier: MIT
#include "integralnumberdisplayformat.h"

#include "numbertext_p.h"
#include "typednumber_p.h"

#include <jtbase/numbercharacters.h>
#include <jtbase/numberhelpers.h>

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <optional>
#include <type_traits>

namespace {

/// The widest type with the signedness of T.
template <typename T>
using Widest = std::conditional_t<std::is_signed_v<T>, qint64, quint64>;

/// The text with ASCII characters in place of full-width ones and of all kinds of minus.
QString folded(QString text)
{
    for (QChar& c : text) {
        if (c >= u'\uFF01' && c <= u'\uFF5E')
            c = QChar(static_cast<char16_t>(c.unicode() - 0xFEE0));
        else if (NumberCharacters::meaningOf(c.unicode()) == '-')
            c = u'-';
    }
    return text.trimmed();
}

/// Whether this is a number in the base, be it too long for any type.
bool isInBase(const QString& text, int base)
{
    QString digits = folded(text).toLower();
    if (digits.startsWith(u'-') || digits.startsWith(u'+'))
        digits.remove(0, 1);
    if (base == 16 && digits.startsWith(u"0x"))
        digits.remove(0, 2);
    return !digits.isEmpty() && std::all_of(digits.begin(), digits.end(), [base](QChar c) {
        const int digit = c >= u'a' && c <= u'z' ? c.unicode() - u'a' + 10
                          : c.unicode() < 0x80   ? c.digitValue()
                                                 : -1;
        return digit >= 0 && digit < base;
    });
}

/// What the toolkit reads beyond digits: base prefixes.
template <typename T>
std::optional<T> readWithBasePrefix(const QString& text, int base)
{
    bool ok = false;
    Widest<T> value = 0;
    if constexpr (std::is_signed_v<T>)
        value = text.toLongLong(&ok, base);
    else
        value = text.toULongLong(&ok, base);
    if (!ok || value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
        return std::nullopt;
    return static_cast<T>(value);
}

template <typename T>
std::optional<T> readInteger(const QString& text, int base, const QLocale& locale, bool useLocale,
                             QChar decimalPoint)
{
    if (const std::optional<T> value = TypedNumber::readPlain<T>(text, base))
        return value;
    bool ok = false;
    T value{};
    if (!useLocale)
        value = NumberHelpers::parse<T>(text, &ok, base);
    // What is written in the locale can be read in any case.
    if (!ok && !TypedNumber::hasZeroGroup(text, locale))
        value = NumberHelpers::parse<T>(text, locale, &ok, base);
    if (ok)
        return value;
    if (base != 10)
        return readWithBasePrefix<T>(folded(text), base);
    TypedNumber::Ascii ascii;
    if (TypedNumber::normalize(text, decimalPoint, ascii) != TypedNumber::Outcome::Number)
        return std::nullopt;
    return TypedNumber::fromAscii<T>(ascii);
}

} // namespace

template <typename T>
IntegralNumberDisplayFormat<T>::IntegralNumberDisplayFormat() = default;

template <typename T>
IntegralNumberDisplayFormat<T>::~IntegralNumberDisplayFormat() = default;

template <typename T>
std::unique_ptr<ValueDisplayFormatBase<T>> IntegralNumberDisplayFormat<T>::clone() const
{
    return std::make_unique<IntegralNumberDisplayFormat<T>>(*this);
}

template <typename T>
T IntegralNumberDisplayFormat<T>::valueFromText(const QString& text, bool* ok) const
{
    const std::optional<T> value = readInteger<T>(text, m_base, this->locale(), this->useLocale(),
                                                  this->notation().decimalPoint);
    if (ok != nullptr)
        *ok = value.has_value();
    return value.value_or(T(0));
}

template <typename T>
QString IntegralNumberDisplayFormat<T>::textFromValue(T value) const
{
    return NumberText::ofInteger<Widest<T>>(value, this->locale(), this->notation(), m_base,
                                            this->showPlus());
}

template <typename T>
QString IntegralNumberDisplayFormat<T>::refusalReason(const QString& text) const
{
    constexpr int example = 26;
    TypedNumber::Ascii ascii;
    const QChar point = this->notation().decimalPoint;
    if (const auto meanings = TypedNumber::meaningsOf(text, point); meanings && m_base == 10)
        return TypedNumber::separatorReason(meanings->whole);
    const bool isNumber =
        m_base == 10 ? TypedNumber::normalize(text, point, ascii) == TypedNumber::Outcome::Number
                     : isInBase(text, m_base);
    if (ascii.contains('.') && isNumber)
        return QCoreApplication::translate("DisplayFormat",
                                           "Type a whole number, without decimals.");
    if (isNumber && !ascii.contains('e')) {
        return QCoreApplication::translate("DisplayFormat", "Type a number from %1 to %2.")
            .arg(textFromValue(std::numeric_limits<T>::min()),
                 textFromValue(std::numeric_limits<T>::max()));
    }
    return TypedNumber::refusalReason(text, QString::number(example, m_base));
}

template <typename T>
void IntegralNumberDisplayFormat<T>::setBase(int base)
{
    if (base >= 2 && base <= 36)
        m_base = base;
}

#define INSTANTIATE(T) template class IntegralNumberDisplayFormat<T>;
GUIBASE_FOR_EACH_INPUT_INTEGER(INSTANTIATE)
#undef INSTANTIATE
