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
    QStringView pattern;
};

/// By ESuffix.
constexpr std::array<Unit, 5> units{{
    {QLatin1StringView("Hz"), u"[hH\uFF48\uFF28][zZ\uFF5A\uFF3A]?"},
    {QLatin1StringView("Hz"), u"[hH\uFF48\uFF28][zZ\uFF5A\uFF3A]?"},
    {QLatin1StringView("kHz"), u"[kK\uFF4B\uFF2B]([hH\uFF48\uFF28][zZ\uFF5A\uFF3A])?"},
    {QLatin1StringView("MHz"), u"[mM\uFF4D\uFF2D]([hH\uFF48\uFF28][zZ\uFF5A\uFF3A])?"},
    {QLatin1StringView("GHz"), u"[gG\uFF47\uFF27]([hH\uFF48\uFF28][zZ\uFF5A\uFF3A])?"},
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

/// As TypedNumber::normalize(), but knows what points mean on radios.
TypedNumber::Outcome normalize(const QString& text, const QLocale& locale, QChar decimalPoint,
                               int exponent, TypedNumber::Ascii& ascii)
{
    constexpr int kilo = 3;
    if (exponent > 0 && text.count(u'.') + text.count(u'\uFF0E') > 1 && !text.contains(u','))
        return TypedNumber::Outcome::Ambiguous;
    const TypedNumber::Outcome outcome = TypedNumber::normalize(text, decimalPoint, ascii);
    const bool isDecimal = exponent > kilo || (exponent == kilo && locale.groupSeparator() != u".");
    return outcome == TypedNumber::Outcome::Ambiguous && isDecimal
               ? TypedNumber::normalize(text, u'.', ascii)
               : outcome;
}

} // namespace

FrequencyDisplayFormat::FrequencyDisplayFormat(UnitPrefix::ESuffix unit)
    : m_unit(knownUnit(unit))
{
    const Unit& row = units[static_cast<std::size_t>(m_unit)];
    setSuffix(QString(row.name));
    setSuffixPattern(QRegularExpression(row.pattern.toString()));
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
    if (normalize(text, locale(), notation().decimalPoint, exponent(), ascii) ==
        TypedNumber::Outcome::Number)
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
    constexpr qint64 example = 14'225'000;
    TypedNumber::Ascii ascii;
    const QChar point = notation().decimalPoint;
    const TypedNumber::Outcome outcome = normalize(text, locale(), point, exponent(), ascii);
    if (outcome == TypedNumber::Outcome::Ambiguous) {
        if (const QString reason = ambiguityReason(text); !reason.isEmpty())
            return reason;
    }
    if (outcome != TypedNumber::Outcome::Number || ascii.contains('e'))
        return TypedNumber::refusalReason(text, withUnit(textFromValue(example)));
    const auto mark = std::find(ascii.begin(), ascii.end(), '.');
    if (mark == ascii.end() || ascii.end() - mark - 1 <= exponent())
        return QCoreApplication::translate("DisplayFormat", "Type a number from %1 to %2.")
            .arg(withUnit(textFromValue(std::numeric_limits<qint64>::min())),
                 withUnit(textFromValue(std::numeric_limits<qint64>::max())));
    return QCoreApplication::translate("DisplayFormat",
                                       "Type whole hertz: at most %1 decimals in %2.")
        .arg(exponent())
        .arg(suffix());
}

QString FrequencyDisplayFormat::withUnit(const QString& number) const
{
    return number + u' ' + suffix();
}

/// Empty where the text would be no number either without its separators.
QString FrequencyDisplayFormat::ambiguityReason(const QString& text) const
{
    if (const auto meanings = TypedNumber::meaningsOf(text, notation().decimalPoint))
        return exponent() == 0 ? TypedNumber::separatorReason(withUnit(meanings->whole))
                               : TypedNumber::ambiguityReason(withUnit(meanings->decimal),
                                                              withUnit(meanings->whole));
    // Several points, as radios show hertz.
    TypedNumber::Ascii ascii;
    if (TypedNumber::normalize(text, notation().decimalPoint, ascii) !=
        TypedNumber::Outcome::Number)
        return {};
    const std::optional<qint64> hertz = TypedNumber::fromAscii<qint64>(ascii);
    return hertz ? TypedNumber::ambiguityReason(QString::number(*hertz) + QStringLiteral(" Hz"),
                                                withUnit(textFromValue(*hertz)))
                 : QString();
}

std::vector<qint64> FrequencyDisplayFormat::widestValues(const qint64& minimum,
                                                         const qint64& maximum) const
{
    if (minimum == maximum)
        return {minimum};
    return {minimum, minimum + 1, maximum - 1, maximum};
}
