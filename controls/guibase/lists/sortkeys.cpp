// SPDX-License-Identifier: MIT
#include "sortkeys_p.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

struct NumberAt
{
    double number;
    quint32 row;
};

/// A text with its first characters as one number.
struct TextAt
{
    quint64 prefix;
    quint32 row;
};

constexpr qsizetype prefixLength = 4;

qsizetype commonPrefixLength(const std::vector<QStringView>& texts)
{
    const QStringView first = texts.front();
    qsizetype length = first.size();
    for (const QStringView text : texts) {
        const auto end = first.begin() + std::min(length, text.size());
        length = std::mismatch(first.begin(), end, text.begin()).first - first.begin();
    }
    return length;
}

/// Characters `from` and following; the prefixes of two texts are ordered as the texts are, unless
/// they are equal. Nothing where this cannot be said: characters of two code units have no case of
/// their own in each unit.
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

std::vector<TextAt> withPrefixes(const std::vector<QStringView>& texts, bool ignoreCase)
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

/// Reads what nearly all numbers are: some digits, with a point between them. Whole numbers and
/// powers of ten of this size are exact as double, so that the quotient is the nearest double, as
/// toDouble() finds it at greater length.
std::optional<double> simpleDecimal(QStringView text)
{
    constexpr qsizetype longest = 16;
    constexpr std::array<double, longest> powers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const qsizetype point = text.indexOf(u'.');
    if (text.isEmpty() || text.size() > longest || point == 0 || point == text.size() - 1)
        return std::nullopt;
    qint64 digits = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int digit = text.at(i).unicode() - u'0';
        if (i == point)
            continue;
        if (digit < 0 || digit > 9)
            return std::nullopt;
        digits = digits * 10 + digit;
    }
    const qsizetype decimals = point < 0 ? 0 : text.size() - 1 - point;
    if (digits >= qint64(1) << 53)
        return std::nullopt;
    return double(digits) / powers[std::size_t(decimals)];
}

double numberOf(QStringView text)
{
    if (const std::optional<double> number = simpleDecimal(text))
        return *number;
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? number : std::numeric_limits<double>::quiet_NaN();
}

/// The places of the rows among the sorted ones; rows that are equal have the same one.
template <typename Row, typename Less>
std::vector<quint32> sortedRanks(std::vector<Row> rows, Less less)
{
    // In a list that rows were appended to, the others are sorted already.
    const auto sortedEnd = std::is_sorted_until(rows.begin(), rows.end(), less);
    std::sort(sortedEnd, rows.end(), less);
    std::inplace_merge(rows.begin(), sortedEnd, rows.end(), less);
    std::vector<quint32> ranks(rows.size());
    quint32 rank = 0;
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

SortKeys::Value SortKeys::valueOf(const QString& text) const
{
    if (!isNumeric())
        return {text, 0};
    const qsizetype blank = m_rule == Rule::NumberWithSuffix ? text.indexOf(u' ') : -1;
    return {{}, numberOf(QStringView(text).first(blank < 0 ? text.size() : blank))};
}

void SortKeys::add(const QString& text, const QString& sortKey)
{
    Row row{valueOf(text), {}, !sortKey.isEmpty()};
    if (row.hasKey) {
        row.key = valueOf(sortKey);
        ++m_keyCount;
    }
    m_rows.push_back(std::move(row));
}

void SortKeys::add(const SortKeys& earlier, quint32 row)
{
    m_rows.push_back(earlier.m_rows[row]);
    if (m_rows.back().hasKey)
        ++m_keyCount;
}

bool SortKeys::isLess(quint32 a, quint32 b) const
{
    const Row& rowA = m_rows[a];
    const Row& rowB = m_rows[b];
    return rowA.hasKey && rowB.hasKey ? isLess(rowA.key, rowB.key) : isLess(rowA.text, rowB.text);
}

bool SortKeys::isLess(const Value& a, const Value& b) const
{
    switch (m_rule) {
    case Rule::Text:
        return a.text.compare(b.text) < 0;
    case Rule::TextIgnoringCase:
        return a.text.compare(b.text, Qt::CaseInsensitive) < 0;
    case Rule::Number:
    case Rule::NumberWithSuffix:
        return a.number < b.number;
    case Rule::Function:
        break;
    }
    return m_function(b.text, a.text) < 0;
}

std::optional<std::vector<quint32>> SortKeys::ranks() const
{
    if (m_rule == Rule::Function || m_rows.empty() || (m_keyCount > 0 && m_keyCount != count()))
        return std::nullopt;
    const Value Row::*const used = m_keyCount > 0 ? &Row::key : &Row::text;
    if (isNumeric()) {
        std::vector<NumberAt> numbers(count());
        for (quint32 row = 0; row < count(); ++row)
            numbers[row] = {(m_rows[row].*used).number, row};
        if (std::any_of(numbers.begin(), numbers.end(),
                        [](const NumberAt& at) { return std::isnan(at.number); }))
            return std::nullopt;
        return sortedRanks(std::move(numbers), [](const NumberAt& a, const NumberAt& b) {
            return a.number < b.number;
        });
    }
    std::vector<QStringView> texts(count());
    for (quint32 row = 0; row < count(); ++row)
        texts[row] = (m_rows[row].*used).text;
    return sortedRanks(withPrefixes(texts, m_rule == Rule::TextIgnoringCase),
                       [&](const TextAt& a, const TextAt& b) {
                           return a.prefix != b.prefix ? a.prefix < b.prefix : isLess(a.row, b.row);
                       });
}
