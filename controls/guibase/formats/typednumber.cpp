// SPDX-License-Identifier: MIT
#include "typednumber_p.h"

#include <jtbase/numbercharacters.h>

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

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool translate(QStringView text, Ascii& ascii)
{
    ascii.clear();
    ascii.reserve(text.size());
    for (const QChar c : text) {
        if (NumberCharacters::isDirectionMark(c.unicode()))
            continue;
        const char meaning = NumberCharacters::meaningOf(c.unicode());
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
    return normalizeMantissa(ascii, begin, end,
                             NumberCharacters::meaningOf(decimalPoint.unicode()));
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

QString TypedNumber::shortened(QStringView text)
{
    constexpr qsizetype shownLength = 40;
    const QStringView trimmed = text.trimmed();
    return trimmed.size() > shownLength ? trimmed.first(shownLength).toString() + QChar(u'\u2026')
                                        : trimmed.toString();
}

std::optional<TypedNumber::Meanings> TypedNumber::meaningsOf(QStringView text, QChar decimalPoint)
{
    Ascii ascii;
    if (normalize(text, decimalPoint, ascii) != Outcome::Ambiguous)
        return std::nullopt;
    const QString number = QString::fromLatin1(ascii.constData(), ascii.size());
    Meanings meanings{number, number};
    const auto isMark = [](QChar c) { return c == u'.' || c == u','; };
    *std::find_if(meanings.decimal.begin(), meanings.decimal.end(), isMark) = decimalPoint;
    meanings.whole.removeIf(isMark);
    return meanings;
}

QString TypedNumber::refusalReason(QStringView text, const QString& example)
{
    if (text.trimmed().isEmpty())
        return QCoreApplication::translate("DisplayFormat", "Type a number, such as %1.")
            .arg(example);
    return QCoreApplication::translate("DisplayFormat",
                                       "\"%1\" cannot be read. Type a number such as %2.")
        .arg(shortened(text), example);
}

QString TypedNumber::ambiguityReason(const QString& one, const QString& other)
{
    return QCoreApplication::translate("DisplayFormat", "Ambiguous: type %1 or %2.")
        .arg(one, other);
}

QString TypedNumber::separatorReason(const QString& whole)
{
    return QCoreApplication::translate("DisplayFormat",
                                       "Type whole numbers without separators: %1.")
        .arg(whole);
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
