// SPDX-License-Identifier: MIT
#include "numberhelpers.h"

#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <concepts>
#include <limits>
#include <optional>

namespace {

/// Room for every number that people write; only longer texts are put on the heap.
using AsciiNumber = QVarLengthArray<char, 128>;

constexpr char32_t fullWidthZero = 0xFF10;

bool isMinus(char32_t c)
{
    return c == U'-' || c == U'\u2212' || c == U'\uFF0D';
}

bool isPlus(char32_t c)
{
    return c == U'+' || c == U'\uFF0B';
}

/// Drops the marks that set the direction of writing; some locales put them around signs.
QStringView withoutLeadingMarks(QStringView text)
{
    const auto isMark = [](QChar c) { return c == u'\u200E' || c == u'\u200F' || c == u'\u061C'; };
    while (!text.isEmpty() && isMark(text.front()))
        text = text.sliced(1);
    return text;
}

bool isBlankSeparator(char32_t c)
{
    return c == U' ' || c == U'\u00A0' || c == U'\u2009' || c == U'\u202F';
}

bool isApostrophe(char32_t c)
{
    return c == U'\'' || c == U'\u2019';
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

/// How many digits stand between group separators.
struct GroupSizes
{
    int last = 0;  ///< Between the last separator and the end of the integer.
    int other = 0; ///< In the groups before.
    int first = 0; ///< At most in the first one; some locales part no single digit from it.
};

/// How a locale writes numbers; a null locale stands for the C locale without group separators.
struct Notation
{
    explicit Notation(const QLocale* locale);

    char32_t zero = U'0';
    char32_t decimalPoint = U'.';
    char32_t groupSeparator = 0; ///< 0: not accepted.
    QString exponent;
};

Notation::Notation(const QLocale* locale)
{
    if (locale == nullptr)
        return;
    const auto codePoint = [](const QString& text) {
        return text.isEmpty() ? U'\0' : firstCodePoint(text);
    };
    zero = codePoint(locale->zeroDigit());
    decimalPoint = codePoint(locale->decimalPoint());
    exponent = locale->exponential();
    if (locale->numberOptions().testFlag(QLocale::RejectGroupSeparator))
        return;
    groupSeparator = codePoint(locale->groupSeparator());
}

/// The sizes as the locale writes a long number; all 0 when it does not separate groups at all.
GroupSizes measuredGroups(QLocale locale)
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

/// Checks while reading that group separators stand where they belong.
class GroupCheck
{
public:
    void digit() { ++m_run; }
    /// At a group separator; false when it cannot stand here.
    bool separator(GroupSizes sizes)
    {
        const bool fits = m_separated ? m_run == sizes.other : m_run >= 1 && m_run <= sizes.first;
        m_separated = true;
        m_run = 0;
        return fits;
    }
    bool end(GroupSizes sizes) const { return !m_separated || m_run == sizes.last; }
    bool isSeparated() const { return m_separated; }

private:
    qsizetype m_run = 0;
    bool m_separated = false;
};

/// Takes a number apart from the left. The locale is asked only when something else than ASCII
/// digits and signs comes up.
class Scanner
{
public:
    Scanner(QStringView text, const QLocale* locale)
        : m_rest(text.trimmed())
        , m_locale(locale)
    {}

    bool atEnd() const { return m_rest.isEmpty(); }
    /// To be asked after takeGroupSeparator() took one.
    GroupSizes groupSizes()
    {
        if (!m_groupSizes)
            m_groupSizes = measuredGroups(*m_locale);
        return *m_groupSizes;
    }

    /// Takes a sign if there is one: '-' or '+', or a null character.
    char takeSign();
    /// Takes a digit of the base: its value, or -1 when the next character is none.
    int takeDigit(int base);
    bool takeGroupSeparator();
    bool takeDecimalPoint();
    bool takeExponent();

private:
    const Notation& notation()
    {
        if (!m_notation)
            m_notation.emplace(m_locale);
        return *m_notation;
    }
    int otherDigitValue(char32_t c);
    void drop(qsizetype count) { m_rest = m_rest.sliced(count); }

    QStringView m_rest;
    const QLocale* m_locale;
    std::optional<Notation> m_notation;
    std::optional<GroupSizes> m_groupSizes;
};

char Scanner::takeSign()
{
    QStringView text = withoutLeadingMarks(m_rest);
    if (text.isEmpty())
        return '\0';
    const char32_t c = firstCodePoint(text);
    if (!isMinus(c) && !isPlus(c))
        return '\0';
    m_rest = withoutLeadingMarks(text.sliced(1));
    return isMinus(c) ? '-' : '+';
}

int Scanner::takeDigit(int base)
{
    if (m_rest.isEmpty())
        return -1;
    const char32_t c = firstCodePoint(m_rest);
    int value = -1;
    if (c >= U'0' && c <= U'9')
        value = static_cast<int>(c - U'0');
    else if (c >= U'a' && c <= U'z')
        value = static_cast<int>(c - U'a') + 10;
    else if (c >= U'A' && c <= U'Z')
        value = static_cast<int>(c - U'A') + 10;
    else if (c >= 0x80)
        value = otherDigitValue(c);
    if (value < 0 || value >= base)
        return -1;
    drop(unitCount(c));
    return value;
}

int Scanner::otherDigitValue(char32_t c)
{
    if (c >= fullWidthZero && c < fullWidthZero + 10)
        return static_cast<int>(c - fullWidthZero);
    const char32_t zero = notation().zero;
    return c >= zero && c < zero + 10 ? static_cast<int>(c - zero) : -1;
}

bool Scanner::takeGroupSeparator()
{
    const char32_t separator = notation().groupSeparator;
    if (m_rest.isEmpty() || separator == 0)
        return false;
    const char32_t c = firstCodePoint(m_rest);
    const bool taken = c == separator || (isBlankSeparator(separator) && isBlankSeparator(c)) ||
                       (isApostrophe(separator) && isApostrophe(c));
    if (taken)
        drop(unitCount(c));
    return taken;
}

bool Scanner::takeDecimalPoint()
{
    if (m_rest.isEmpty())
        return false;
    const char32_t c = firstCodePoint(m_rest);
    const char32_t point = notation().decimalPoint;
    const bool ownPointIsAscii = point == U'.' || point == U',';
    const bool taken = c == point || (c == U'\uFF0E' && point == U'.') ||
                       (c == U'.' && !ownPointIsAscii && notation().groupSeparator != U'.');
    if (taken)
        drop(unitCount(c));
    return taken;
}

bool Scanner::takeExponent()
{
    if (m_rest.isEmpty())
        return false;
    if (m_rest.front() == u'e' || m_rest.front() == u'E') {
        drop(1);
        return true;
    }
    const QString& exponent = notation().exponent;
    if (exponent.isEmpty() || !m_rest.startsWith(exponent, Qt::CaseInsensitive))
        return false;
    drop(exponent.size());
    return true;
}

struct SignedMagnitude
{
    bool negative = false;
    quint64 magnitude = 0;
};

/// The largest magnitudes that a type holds on both sides of zero.
struct IntegerLimits
{
    quint64 positive;
    quint64 negative;
};

std::optional<SignedMagnitude> readInteger(Scanner& scanner, int base, const IntegerLimits& limits)
{
    if (base < 2 || base > 36)
        return std::nullopt;
    SignedMagnitude number;
    number.negative = scanner.takeSign() == '-';
    const quint64 limit = number.negative ? limits.negative : limits.positive;
    const auto factor = static_cast<quint64>(base);
    GroupCheck groups;
    bool anyDigit = false;
    while (!scanner.atEnd()) {
        const int value = scanner.takeDigit(base);
        if (value < 0) {
            // Locales group decimal digits only.
            if (base != 10 || !scanner.takeGroupSeparator() ||
                !groups.separator(scanner.groupSizes()))
                return std::nullopt;
            continue;
        }
        const auto digit = static_cast<quint64>(value);
        if (digit > limit || number.magnitude > (limit - digit) / factor)
            return std::nullopt;
        number.magnitude = number.magnitude * factor + digit;
        groups.digit();
        anyDigit = true;
    }
    if (!anyDigit || (groups.isSeparated() && !groups.end(scanner.groupSizes())))
        return std::nullopt;
    return number;
}

template <std::integral T>
std::optional<T> readNumber(QStringView text, const QLocale* locale, int base)
{
    constexpr T highest = std::numeric_limits<T>::max();
    constexpr T lowest = std::numeric_limits<T>::min();
    constexpr IntegerLimits limits{static_cast<quint64>(highest),
                                   quint64(0) - static_cast<quint64>(lowest)};
    Scanner scanner(text, locale);
    const std::optional<SignedMagnitude> number = readInteger(scanner, base, limits);
    if (!number)
        return std::nullopt;
    // Unsigned arithmetic wraps, so that the negation is defined for the lowest value too.
    return static_cast<T>(number->negative ? quint64(0) - number->magnitude : number->magnitude);
}

/// The value of a number in C notation. Nothing for a text that is no number as a whole, and for a
/// value that a double can only express as infinity or, wrongly, as zero.
std::optional<double> fromAscii(const char* begin, const char* end)
{
    double value = 0.0;
    const std::from_chars_result result = std::from_chars(begin, end, value);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

void takeDigits(Scanner& scanner, AsciiNumber& number)
{
    for (int digit = scanner.takeDigit(10); digit >= 0; digit = scanner.takeDigit(10))
        number.append(static_cast<char>('0' + digit));
}

/// Reads digits and group separators up to the decimal point; false for misplaced separators.
bool takeGroupedDigits(Scanner& scanner, AsciiNumber& number)
{
    GroupCheck groups;
    while (!scanner.atEnd()) {
        const int digit = scanner.takeDigit(10);
        if (digit >= 0) {
            number.append(static_cast<char>('0' + digit));
            groups.digit();
        } else if (!scanner.takeGroupSeparator()) {
            break;
        } else if (!groups.separator(scanner.groupSizes())) {
            return false;
        }
    }
    return !groups.isSeparated() || groups.end(scanner.groupSizes());
}

template <std::same_as<double> T>
std::optional<T> readNumber(QStringView text, const QLocale* locale, int base)
{
    if (base != 10)
        return std::nullopt;
    Scanner scanner(text, locale);
    AsciiNumber number;
    if (scanner.takeSign() == '-')
        number.append('-');
    if (!takeGroupedDigits(scanner, number))
        return std::nullopt;
    if (scanner.takeDecimalPoint()) {
        number.append('.');
        takeDigits(scanner, number);
    }
    if (!scanner.atEnd() && scanner.takeExponent()) {
        number.append('e');
        if (scanner.takeSign() == '-')
            number.append('-');
        takeDigits(scanner, number);
    }
    if (!scanner.atEnd())
        return std::nullopt;
    return fromAscii(number.cbegin(), number.cend());
}

template <typename T>
T result(const std::optional<T>& number, bool* ok)
{
    if (ok != nullptr)
        *ok = number.has_value();
    return number.value_or(T(0));
}

} // namespace

template <typename T>
T NumberHelpers::parse(QStringView text, const QLocale& locale, bool* ok, int base)
{
    return result(readNumber<T>(text, &locale, base), ok);
}

template <typename T>
T NumberHelpers::parse(QStringView text, bool* ok, int base)
{
    return result(readNumber<T>(text, nullptr, base), ok);
}

#define INSTANTIATE_PARSE(T)                                                                       \
    template JTBASE_EXPORT T NumberHelpers::parse<T>(QStringView, const QLocale&, bool*, int);     \
    template JTBASE_EXPORT T NumberHelpers::parse<T>(QStringView, bool*, int);

INSTANTIATE_PARSE(signed char)
INSTANTIATE_PARSE(unsigned char)
INSTANTIATE_PARSE(short)
INSTANTIATE_PARSE(unsigned short)
INSTANTIATE_PARSE(int)
INSTANTIATE_PARSE(unsigned int)
INSTANTIATE_PARSE(qint64)
INSTANTIATE_PARSE(quint64)
INSTANTIATE_PARSE(double)

#undef INSTANTIATE_PARSE

namespace Trov {

namespace {

bool isSeparator(char c)
{
    return c == '.' || c == ',';
}

/// The ASCII character that means the same in a number; a null character for what is in none.
char asciiMeaning(char16_t c)
{
    if ((c >= u'0' && c <= u'9') || c == u'.' || c == u',' || c == u'e')
        return static_cast<char>(c);
    if (isMinus(c))
        return '-';
    if (isPlus(c))
        return '+';
    if (c >= fullWidthZero && c < fullWidthZero + 10)
        return static_cast<char>('0' + (c - fullWidthZero));
    return c == u'E' ? 'e' : c == u'\uFF0E' ? '.' : c == u'\uFF0C' ? ',' : '\0';
}

/// Takes the group separators out of a number with several separators, and writes the decimal one
/// as a point. Returns the new end, or null when a separator is misplaced.
char* withoutGroups(char* begin, char* end)
{
    constexpr GroupSizes threes{3, 3, 3};
    char* const exponent = std::find(begin, end, 'e');
    char* const first = std::find_if(begin, exponent, isSeparator);
    if (first == exponent)
        return nullptr;
    const char group = *first;
    char* decimal = exponent;
    while (!isSeparator(*(decimal - 1)))
        --decimal;
    --decimal;
    char* const integerEnd = *decimal == group ? exponent : decimal;
    if (integerEnd == decimal)
        *decimal = '.';

    char* out = begin;
    GroupCheck groups;
    for (const char* in = begin; in != integerEnd; ++in) {
        if (*in == group) {
            if (!groups.separator(threes))
                return nullptr;
            continue;
        }
        if (*in != '-')
            groups.digit();
        *out++ = *in;
    }
    return groups.end(threes) ? std::copy(integerEnd, end, out) : nullptr;
}

std::optional<double> readDouble(QStringView text)
{
    text = text.trimmed();
    if (!text.isEmpty() && isPlus(text.front().unicode())) {
        text = text.sliced(1);
        if (!text.isEmpty() && isMinus(text.front().unicode()))
            return std::nullopt;
    }
    AsciiNumber number(text.size());
    char* end = number.data();
    char* separator = nullptr;
    int separators = 0;
    for (QChar c : text) {
        const char ascii = asciiMeaning(c.unicode());
        if (ascii == '\0')
            return std::nullopt;
        if (isSeparator(ascii)) {
            separator = end;
            ++separators;
        }
        *end++ = ascii;
    }
    if (separators == 1)
        *separator = '.';
    else if (separators > 1)
        end = withoutGroups(number.data(), end);
    return end != nullptr ? fromAscii(number.data(), end) : std::nullopt;
}

} // namespace

double toDoubleEx(QStringView text, bool* ok)
{
    return result(readDouble(text), ok);
}

} // namespace Trov
