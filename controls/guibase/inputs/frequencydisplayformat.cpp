// SPDX-License-Identifier: MIT
#include "frequencydisplayformat.h"

#include "typednumber_p.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace {

struct Unit
{
    QLatin1StringView name;
    QLatin1StringView pattern;
};

/// By ESuffix.
constexpr std::array<Unit, 5> units{{
    {QLatin1StringView("Hz"), QLatin1StringView("[hH][zZ]?")},
    {QLatin1StringView("Hz"), QLatin1StringView("[hH][zZ]?")},
    {QLatin1StringView("kHz"), QLatin1StringView("[kK]([hH][zZ])?")},
    {QLatin1StringView("MHz"), QLatin1StringView("[mM]([hH][zZ])?")},
    {QLatin1StringView("GHz"), QLatin1StringView("[gG]([hH][zZ])?")},
}};

UnitPrefix::ESuffix knownUnit(UnitPrefix::ESuffix unit)
{
    return unit >= UnitPrefix::BaseUnit && unit <= UnitPrefix::Giga ? unit : UnitPrefix::BaseUnit;
}

/// The whole number of `ascii` * 10^exponent, or nothing when there is none.
std::optional<qint64> scaled(const TypedNumber::Ascii& ascii, int exponent)
{
    TypedNumber::Ascii digits;
    bool hasPoint = false;
    for (const char c : ascii) {
        if (c == '.') {
            hasPoint = true;
        } else if (c == 'e') {
            return std::nullopt;
        } else if (hasPoint && exponent == 0) {
            if (c != '0')
                return std::nullopt;
        } else {
            digits.append(c);
            exponent -= hasPoint ? 1 : 0;
        }
    }
    for (; exponent > 0; --exponent)
        digits.append('0');
    return TypedNumber::fromAscii<qint64>(digits);
}

/// As TypedNumber::normalize(), but a single point is the decimal one where hertz are left over.
TypedNumber::Outcome normalize(const QString& text, QChar decimalPoint, int exponent,
                               TypedNumber::Ascii& ascii)
{
    const TypedNumber::Outcome outcome = TypedNumber::normalize(text, decimalPoint, ascii);
    return outcome == TypedNumber::Outcome::Ambiguous && exponent > 0
               ? TypedNumber::normalize(text, u'.', ascii)
               : outcome;
}

} // namespace

FrequencyDisplayFormat::FrequencyDisplayFormat(UnitPrefix::ESuffix unit)
    : m_unit(knownUnit(unit))
{
    const Unit& row = units[static_cast<std::size_t>(m_unit)];
    setSuffix(QString(row.name));
    setSuffixPattern(QRegularExpression(QString(row.pattern)));
}

FrequencyDisplayFormat::~FrequencyDisplayFormat() = default;

std::unique_ptr<ValueDisplayFormatBase<qint64>> FrequencyDisplayFormat::clone() const
{
    return std::make_unique<FrequencyDisplayFormat>(*this);
}

int FrequencyDisplayFormat::exponent() const
{
    return 3 * (m_unit - UnitPrefix::BaseUnit);
}

void FrequencyDisplayFormat::setMinimumDecimals(int decimals)
{
    m_minimumDecimals = std::clamp(decimals, 0, exponent());
}

qint64 FrequencyDisplayFormat::valueFromText(const QString& text, bool* ok) const
{
    TypedNumber::Ascii ascii;
    std::optional<qint64> value;
    if (normalize(text, notation().decimalPoint, exponent(), ascii) == TypedNumber::Outcome::Number)
        value = scaled(ascii, exponent());
    if (ok != nullptr)
        *ok = value.has_value();
    return value.value_or(0);
}

QString FrequencyDisplayFormat::textFromValue(qint64 value) const
{
    std::array<char, 24> buffer;
    const std::to_chars_result result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    QString text = QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
    if (exponent() == 0)
        return text;
    const qsizetype firstDigit = value < 0 ? 1 : 0;
    const qsizetype missing = exponent() + 1 - (text.size() - firstDigit);
    if (missing > 0)
        text.insert(firstDigit, QString(missing, u'0'));
    const qsizetype pointAt = text.size() - exponent();
    qsizetype end = text.size();
    while (end > pointAt + m_minimumDecimals && text[end - 1] == u'0')
        --end;
    text.truncate(end);
    if (end > pointAt)
        text.insert(pointAt, notation().decimalPoint);
    return text;
}

QString FrequencyDisplayFormat::refusalReason(const QString& text) const
{
    TypedNumber::Ascii ascii;
    const QChar point = notation().decimalPoint;
    if (normalize(text, point, exponent(), ascii) != TypedNumber::Outcome::Number)
        return TypedNumber::refusalReason(text, point);
    return QCoreApplication::translate("DisplayFormat",
                                       "Enter a whole number of hertz, at most %1 %2.")
        .arg(textFromValue(std::numeric_limits<qint64>::max()), suffix());
}
