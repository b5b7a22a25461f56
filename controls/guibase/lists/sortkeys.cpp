// SPDX-License-Identifier: MIT
#include "sortkeys_p.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace {

/// A text with its first characters as one number.
struct TextAt
{
    quint64 prefix;
    quint32 row;
};

constexpr qsizetype prefixLength = 4;

qsizetype commonPrefixLength(const std::vector<QString>& texts)
{
    const QString& first = texts.front();
    qsizetype length = first.size();
    for (const QString& text : texts) {
        const auto end = first.begin() + std::min(length, text.size());
        length = std::mismatch(first.begin(), end, text.begin()).first - first.begin();
    }
    return length;
}

/// The characters from `from` on as one number. Two texts are ordered as their numbers are, unless
/// those are equal. Nothing for characters of two code units, since one unit alone has no case.
std::optional<quint64> prefixOf(QStringView text, qsizetype from, bool ignoreCase)
{
    quint64 prefix = 0;
    for (qsizetype i = from; i < from + prefixLength; ++i) {
        const QChar unit = i < text.size() ? text.at(i) : QChar(0);
        if (ignoreCase && unit.isSurrogate())
            return std::nullopt;
        prefix = prefix << 16 | (ignoreCase ? unit.toCaseFolded() : unit).unicode();
    }
    return prefix;
}

std::vector<TextAt> withPrefixes(const std::vector<QString>& texts, bool ignoreCase)
{
    std::vector<TextAt> rows(texts.size());
    const qsizetype from = commonPrefixLength(texts);
    bool usable = true;
    for (quint32 row = 0; row < rows.size(); ++row) {
        const std::optional<quint64> prefix = prefixOf(texts[row], from, ignoreCase);
        usable = usable && prefix;
        rows[row] = {prefix.value_or(0), row};
    }
    if (!usable) {
        for (TextAt& row : rows)
            row.prefix = 0;
    }
    return rows;
}

/// Reads what nearly all numbers are: some digits, with a point between them; with `endsAtBlank`
/// what stands in front of the first blank. Whole numbers and powers of ten of this size are exact
/// as double, so that the quotient is the nearest double, as toDouble() finds it at greater length.
std::optional<double> simpleDecimal(QStringView text, bool endsAtBlank)
{
    constexpr qsizetype longest = 16;
    constexpr std::array<double, longest> powers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    qint64 digits = 0;
    qsizetype point = -1;
    qsizetype end = 0;
    for (; end < text.size(); ++end) {
        const char16_t unit = text.at(end).unicode();
        if (unit == u' ' && endsAtBlank)
            break;
        const bool isPoint = unit == u'.' && point < 0;
        if (end == longest || (!isPoint && (unit < u'0' || unit > u'9')))
            return std::nullopt;
        if (isPoint)
            point = end;
        else
            digits = digits * 10 + (unit - u'0');
    }
    if (end == 0 || point == 0 || point == end - 1 || digits >= qint64(1) << 53)
        return std::nullopt;
    return double(digits) / powers[std::size_t(point < 0 ? 0 : end - 1 - point)];
}

/// What stands in front of the first blank.
QStringView numberPart(const QString& text)
{
    const qsizetype blank = text.indexOf(u' ');
    return QStringView(text).first(blank < 0 ? text.size() : blank);
}

/// NaN for a text that is no number.
double numberOf(const QString& text, bool endsAtBlank)
{
    if (const std::optional<double> number = simpleDecimal(text, endsAtBlank))
        return *number;
    bool isNumber = false;
    const double number = (endsAtBlank ? numberPart(text) : QStringView(text)).toDouble(&isNumber);
    return isNumber ? number : std::numeric_limits<double>::quiet_NaN();
}

/// f(x, y) of the numeric compare functions, on what `part` cuts from the texts.
template <typename Part>
int compareNumbers(const QString& x, const QString& y, Part part)
{
    bool xIsNumber = false;
    bool yIsNumber = false;
    const double xNumber = part(x).toDouble(&xIsNumber);
    const double yNumber = part(y).toDouble(&yIsNumber);
    if (!xIsNumber || !yIsNumber)
        return 0;
    if (xNumber > yNumber)
        return -1;
    return xNumber != yNumber ? 1 : 0;
}

/// The places of the rows among the sorted ones; rows that are equal have the same one.
template <typename Less>
std::vector<double> sortedRanks(std::vector<TextAt> rows, Less less)
{
    // In a list that rows were appended to, the others are sorted already.
    const auto sortedEnd = std::is_sorted_until(rows.begin(), rows.end(), less);
    std::sort(sortedEnd, rows.end(), less);
    std::inplace_merge(rows.begin(), sortedEnd, rows.end(), less);
    std::vector<double> ranks(rows.size());
    double rank = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i > 0 && less(rows[i - 1], rows[i]))
            ++rank;
        ranks[rows[i].row] = rank;
    }
    return ranks;
}

} // namespace

SortKeys::SortKeys(SortListView::CompareFunction function)
    : m_function(function)
    , m_rule(ruleOf(function))
{}

SortKeys::Rule SortKeys::ruleOf(SortListView::CompareFunction function)
{
    if (function == nullptr)
        return Rule::Text;
    if (function == &SortListView::_compStandardString)
        return Rule::TextIgnoringCase;
    if (function == &SortListView::_compStandardNumeric)
        return Rule::Number;
    if (function == &SortListView::_compNumericWithSuffix)
        return Rule::NumberWithSuffix;
    return Rule::Function;
}

bool SortKeys::isNumeric() const
{
    return m_rule == Rule::Number || m_rule == Rule::NumberWithSuffix;
}

void SortKeys::append(Values& values, const QString& text) const
{
    if (!isNumeric()) {
        values.texts.push_back(text);
        return;
    }
    values.numbers.push_back(numberOf(text, m_rule == Rule::NumberWithSuffix));
}

void SortKeys::append(Values& values, const Values& from, quint32 row) const
{
    if (isNumeric())
        values.numbers.push_back(from.numbers[row]);
    else
        values.texts.push_back(from.texts[row]);
}

bool SortKeys::beginRow(bool hasKey)
{
    ++m_count;
    if (!hasKey && m_keyCount == 0)
        return false;
    while (m_hasKey.size() + 1 < m_count) {
        append(m_keys, QString());
        m_hasKey.push_back(0);
    }
    m_hasKey.push_back(hasKey ? 1 : 0);
    if (hasKey)
        ++m_keyCount;
    return true;
}

void SortKeys::add(const QString& text, const QString& sortKey)
{
    append(m_texts, text);
    if (beginRow(!sortKey.isEmpty()))
        append(m_keys, sortKey);
}

void SortKeys::add(const SortKeys& earlier, quint32 row)
{
    const bool hasKey = earlier.m_keyCount > 0 && earlier.m_hasKey[row] != 0;
    append(m_texts, earlier.m_texts, row);
    if (!beginRow(hasKey))
        return;
    if (hasKey)
        append(m_keys, earlier.m_keys, row);
    else
        append(m_keys, QString());
}

bool SortKeys::isLess(quint32 a, quint32 b) const
{
    const bool haveKeys = m_keyCount > 0 && m_hasKey[a] != 0 && m_hasKey[b] != 0;
    return isLess(haveKeys ? m_keys : m_texts, a, b);
}

bool SortKeys::isLess(const Values& values, quint32 a, quint32 b) const
{
    switch (m_rule) {
    case Rule::Text:
        return values.texts[a].compare(values.texts[b]) < 0;
    case Rule::TextIgnoringCase:
        return values.texts[a].compare(values.texts[b], Qt::CaseInsensitive) < 0;
    case Rule::Number:
    case Rule::NumberWithSuffix:
        return values.numbers[a] < values.numbers[b];
    case Rule::Function:
        break;
    }
    return m_function(values.texts[b], values.texts[a]) < 0;
}

bool SortKeys::canRank() const
{
    return m_rule != Rule::Function && m_count > 0 && (m_keyCount == 0 || m_keyCount == m_count);
}

double SortKeys::number(quint32 row) const
{
    return isNumeric() ? values().numbers[row] : 0;
}

std::vector<double> SortKeys::ranks() const
{
    const Values& all = values();
    return sortedRanks(withPrefixes(all.texts, m_rule == Rule::TextIgnoringCase),
                       [&](const TextAt& a, const TextAt& b) {
                           return a.prefix != b.prefix ? a.prefix < b.prefix
                                                       : isLess(all, a.row, b.row);
                       });
}

// --- The compare functions that the list offers -------------------------------------------------

int SortListView::_compStandardString(const QString& x, const QString& y)
{
    return y.compare(x, Qt::CaseInsensitive);
}

int SortListView::_compStandardNumeric(const QString& x, const QString& y)
{
    return compareNumbers(x, y, [](const QString& text) { return QStringView(text); });
}

int SortListView::_compNumericWithSuffix(const QString& x, const QString& y)
{
    return compareNumbers(x, y, numberPart);
}
