// SPDX-License-Identifier: MIT
#include "typednumber_p.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

using TypedNumber::Ascii;
using TypedNumber::Outcome;

constexpr qsizetype groupSize = 3;

/// ASCII for what means the same in numbers: '\'' for apostrophes, ' ' for the blanks that part
/// groups, and a null character for what occurs in no number.
char meaningOf(char16_t c)
{
    if (c >= u'0' && c <= u'9')
        return static_cast<char>(c);
    switch (c) {
    case u'.':
    case u'\uFF0E':
    case u'\u066B':
        return '.';
    case u',':
    case u'\uFF0C':
        return ',';
    case u'-':
    case u'\u2212':
    case u'\u2013':
    case u'\uFF0D':
        return '-';
    case u'+':
    case u'\uFF0B':
        return '+';
    case u'e':
    case u'E':
        return 'e';
    case u'\'':
    case u'\u2019':
    case u'\u066C':
        return '\'';
    case u' ':
    case u'\u00A0':
    case u'\u2007':
    case u'\u2009':
    case u'\u202F':
        return ' ';
    default:
        return QChar::isDigit(c) ? static_cast<char>('0' + QChar::digitValue(c)) : '\0';
    }
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool translate(QStringView text, Ascii& ascii)
{
    ascii.clear();
    ascii.reserve(text.size());
    for (const QChar c : text) {
        if (c == u'\u200E' || c == u'\u200F' || c == u'\u061C') // Marks of direction at signs.
            continue;
        const char meaning = meaningOf(c.unicode());
        if (meaning == '\0')
            return false;
        ascii.append(meaning);
    }
    return true;
}

/// The separators of a mantissa, and how the last one stands.
struct Separators
{
    explicit Separators(const Ascii& ascii, qsizetype begin, qsizetype end);

    qsizetype points = 0;
    qsizetype commas = 0;
    qsizetype blanks = 0;
    qsizetype apostrophes = 0;
    qsizetype lastMark = -1; ///< Of the points and commas.

    /// Blanks and apostrophes never are decimal signs.
    qsizetype groupOnly() const { return blanks + apostrophes; }
};

Separators::Separators(const Ascii& ascii, qsizetype begin, qsizetype end)
{
    for (qsizetype i = begin; i < end; ++i) {
        points += ascii[i] == '.' ? 1 : 0;
        commas += ascii[i] == ',' ? 1 : 0;
        blanks += ascii[i] == ' ' ? 1 : 0;
        apostrophes += ascii[i] == '\'' ? 1 : 0;
        if (ascii[i] == '.' || ascii[i] == ',')
            lastMark = i;
    }
}

/// Takes the separator out of groups of three digits; false when they are not, or begin with a
/// zero, which thousands never do.
bool removeGroups(Ascii& ascii, qsizetype begin, qsizetype& end, char separator)
{
    qsizetype out = begin;
    qsizetype run = 0;
    bool isFirst = true;
    for (qsizetype i = begin; i < end; ++i) {
        if (ascii[i] == separator) {
            if (run < 1 || run > groupSize || ascii[begin] == '0' || (!isFirst && run != groupSize))
                return false;
            isFirst = false;
            run = 0;
        } else {
            ++run;
            ascii[out++] = ascii[i];
        }
    }
    if (!isFirst && run != groupSize)
        return false;
    ascii.erase(ascii.begin() + out, ascii.begin() + end);
    end = out;
    return true;
}

/// Whether a single separator may as well part thousands.
bool mayPartThousands(const Ascii& ascii, qsizetype begin, qsizetype mark, qsizetype end)
{
    return mark > begin && mark - begin <= groupSize && ascii[begin] != '0' &&
           end - mark - 1 == groupSize;
}

/// Makes the mantissa [begin, end) one of C notation.
Outcome normalizeMantissa(Ascii& ascii, qsizetype begin, qsizetype end, char decimalPoint)
{
    const Separators found(ascii, begin, end);
    const bool bothMarks = found.points > 0 && found.commas > 0;
    const qsizetype marks = found.points + found.commas;
    const bool hasDecimals =
        bothMarks ||
        (marks == 1 && (found.groupOnly() > 0 || ascii[found.lastMark] == decimalPoint ||
                        !mayPartThousands(ascii, begin, found.lastMark, end)));
    if (marks == 1 && !hasDecimals)
        return Outcome::Ambiguous;
    const int groupKinds = (found.blanks > 0 ? 1 : 0) + (found.apostrophes > 0 ? 1 : 0) +
                           (marks > (hasDecimals ? 1 : 0) ? 1 : 0);
    if (groupKinds > 1)
        return Outcome::NotANumber;
    char group = found.points > 0 ? '.' : ',';
    if (found.groupOnly() > 0)
        group = found.blanks > 0 ? ' ' : '\'';
    else if (bothMarks)
        group = ascii[found.lastMark] == '.' ? ',' : '.';
    qsizetype integerEnd = end;
    if (hasDecimals) {
        // The decimal sign must be the last separator and the only one of its kind.
        integerEnd = found.lastMark;
        const char decimal = ascii[integerEnd];
        if ((decimal == '.' ? found.points : found.commas) != 1 ||
            !std::all_of(ascii.begin() + integerEnd + 1, ascii.begin() + end, isDigit))
            return Outcome::NotANumber;
        ascii[integerEnd] = '.';
    }
    if (groupKinds == 1 && !removeGroups(ascii, begin, integerEnd, group))
        return Outcome::NotANumber;
    return Outcome::Number;
}

/// A copy of the text without blanks around it and without a plus sign, or nothing when it has
/// other characters than ASCII digits, letters, points and signs, or is too long for plain numbers.
bool plainAscii(QStringView text, Ascii& ascii)
{
    text = text.trimmed();
    if (text.startsWith(u'+') && text.size() > 1 && text[1] != u'-')
        text = text.sliced(1);
    if (text.isEmpty() || text.size() > ascii.capacity())
        return false;
    ascii.resize(text.size());
    char* out = ascii.data();
    for (const QChar c : text) {
        if (c.unicode() >= 0x80)
            return false;
        *out++ = static_cast<char>(c.unicode());
    }
    return true;
}

} // namespace

TypedNumber::Outcome TypedNumber::normalize(QStringView text, QChar decimalPoint, Ascii& ascii)
{
    if (!translate(text.trimmed(), ascii) || ascii.isEmpty())
        return Outcome::NotANumber;
    const qsizetype begin = ascii.first() == '-' ? 1 : 0;
    if (ascii.first() == '+')
        ascii.erase(ascii.begin());
    const auto exponent = std::find(ascii.begin() + begin, ascii.end(), 'e');
    if (exponent != ascii.end() && exponent + 1 != ascii.end() && exponent[1] == '+')
        ascii.erase(exponent + 1);
    const qsizetype end = std::find(ascii.begin() + begin, ascii.end(), 'e') - ascii.begin();
    const auto isMantissa = [](char c) { return c != '-' && c != '+'; };
    if (!std::all_of(ascii.begin() + begin, ascii.begin() + end, isMantissa) ||
        std::none_of(ascii.begin() + begin, ascii.begin() + end, isDigit))
        return Outcome::NotANumber;
    return normalizeMantissa(ascii, begin, end, meaningOf(decimalPoint.unicode()));
}

bool TypedNumber::isAmbiguous(QStringView text, QChar decimalPoint)
{
    Ascii ascii;
    return normalize(text, decimalPoint, ascii) == Outcome::Ambiguous;
}

bool TypedNumber::hasZeroGroup(QStringView text, const QLocale& locale)
{
    if (locale.numberOptions().testFlag(QLocale::RejectGroupSeparator) ||
        !text.contains(locale.groupSeparator()))
        return false;
    const auto first = std::find_if(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
    return first != text.end() && first->digitValue() == 0;
}

template <typename T>
std::optional<T> TypedNumber::readPlain(QStringView text, int base)
{
    Ascii ascii;
    if (!plainAscii(text, ascii))
        return std::nullopt;
    const char* end = ascii.constData() + ascii.size();
    T value{};
    std::from_chars_result result;
    if constexpr (std::is_same_v<T, double>)
        return realFromAscii(ascii);
    else
        result = std::from_chars(ascii.constData(), end, value, base);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

template <std::integral T>
std::optional<T> TypedNumber::fromAscii(const Ascii& ascii)
{
    T value{};
    const char* end = ascii.constData() + ascii.size();
    const std::from_chars_result result = std::from_chars(ascii.constData(), end, value);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

std::optional<double> TypedNumber::realFromAscii(const Ascii& ascii)
{
    double value = 0.0;
    const char* end = ascii.constData() + ascii.size();
    const std::from_chars_result result = std::from_chars(ascii.constData(), end, value);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

QString TypedNumber::refusalReason(QStringView text, QChar decimalPoint)
{
    constexpr qsizetype shownLength = 40;
    const QString shown = text.size() > shownLength
                              ? text.first(shownLength).toString() + QChar(u'\u2026')
                              : text.toString();
    if (text.trimmed().isEmpty())
        return QCoreApplication::translate("DisplayFormat", "A number is missing.");
    if (isAmbiguous(text, decimalPoint))
        return QCoreApplication::translate("DisplayFormat",
                                           "\"%1\" may have a decimal or a thousands separator. "
                                           "Leave it out, or write more or fewer decimals.")
            .arg(shown);
    return QCoreApplication::translate("DisplayFormat", "\"%1\" cannot be read as a number here.")
        .arg(shown);
}

#define INSTANTIATE(T)                                                                             \
    template std::optional<T> TypedNumber::readPlain<T>(QStringView, int);                         \
    template std::optional<T> TypedNumber::fromAscii<T>(const Ascii&);
INSTANTIATE(signed char)
INSTANTIATE(unsigned char)
INSTANTIATE(short)
INSTANTIATE(unsigned short)
INSTANTIATE(int)
INSTANTIATE(unsigned int)
INSTANTIATE(qint64)
INSTANTIATE(quint64)
#undef INSTANTIATE
template std::optional<double> TypedNumber::readPlain<double>(QStringView, int);
