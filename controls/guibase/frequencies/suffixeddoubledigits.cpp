// SPDX-License-Identifier: MIT
// The editing of single digits.
#include "suffixeddouble.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

int saturated(qint64 number)
{
    return static_cast<int>(std::clamp<qint64>(number, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

double powerOfTen(int exponent)
{
    return std::pow(10.0, exponent);
}

} // namespace

QString SuffixedDouble::GetPureNumbers(double v)
{
    store(v);
    if (m_pureNumbers.isEmpty())
        m_pureNumbers = QString::number(m_value, 'f', 0).rightJustified(m_pureNumbersLength, u'0');
    return m_pureNumbers;
}

void SuffixedDouble::ClearPureNumbers()
{
    m_pureNumbers.clear();
}

int SuffixedDouble::GetRealNumericLength()
{
    const QString digits = GetPureNumbers();
    const qsizetype highest = std::min<qsizetype>(m_pureNumbersLength - 1, digits.size());
    for (qsizetype k = highest; k > 0; --k) {
        if (digits.at(digits.size() - k) != u'0')
            return static_cast<int>(k);
    }
    return 0;
}

QChar SuffixedDouble::GetCharAt(int index)
{
    const QString digits = GetPureNumbers();
    const ConverterSet& unit = currentRow();
    const qint64 place = qint64(index) + unit.indexOffset;
    const qint64 position = digits.size() - place;
    if (position < 0 || position >= digits.size())
        return {};
    const QChar digit = digits.at(position);
    const bool isInFrontOfNumber = digit == u'0' && place > unit.indexOffset + 1 + unit.decimals &&
                                   place > GetRealNumericLength();
    return isInFrontOfNumber ? QChar(u' ') : digit;
}

void SuffixedDouble::SetCharAt(QChar character, int index)
{
    SetCurrentIndex(index);
    QString digits = GetPureNumbers();
    const qint64 position = digits.size() - qint64(m_currentIndex) - 1;
    if (position < 0 || position >= digits.size())
        return;
    digits[position] = character;
    store(digits.toDouble());
}

void SuffixedDouble::SetCurrentIndex(int index)
{
    if (index != -1)
        m_currentIndex = saturated(qint64(currentRow().indexOffset) + index);
}

int SuffixedDouble::GetCurrentIndex() const
{
    return saturated(qint64(m_currentIndex) - currentRow().indexOffset);
}

void SuffixedDouble::SetCurrentIndex2Max()
{
    m_currentIndex = m_pureNumbersLength - 1;
}

bool SuffixedDouble::incrementIndex()
{
    if (m_currentIndex >= m_pureNumbersLength - currentRow().indexOffset - 2)
        return false;
    ++m_currentIndex;
    return true;
}

bool SuffixedDouble::decrementIndex()
{
    if (GetCurrentIndex() < 1)
        return false;
    --m_currentIndex;
    return true;
}

void SuffixedDouble::increment(int index)
{
    SetCurrentIndex(index);
    m_value += powerOfTen(m_currentIndex);
    ClearPureNumbers();
}

void SuffixedDouble::decrement(int index)
{
    SetCurrentIndex(index);
    m_value -= GetDecrementValue();
    ClearPureNumbers();
}

/// The step at the current digit, which moves down until the step is not more than the value; 0
/// when even the lowest step is.
double SuffixedDouble::GetDecrementValue()
{
    // Higher powers are infinite, and need not be tried one by one.
    constexpr int highestPower = std::numeric_limits<double>::max_exponent10;
    double step = powerOfTen(m_currentIndex);
    while (step > m_value) {
        if (GetCurrentIndex() <= 0)
            return 0;
        m_currentIndex = std::min(m_currentIndex - 1, highestPower);
        step = powerOfTen(m_currentIndex);
    }
    return step;
}

int SuffixedDouble::GetRealSelectPosition(int index)
{
    const qint64 digits = GetString().size() - currentRow().suffix.size();
    const qint64 decimalPoint = index >= currentRow().decimals ? 1 : 0;
    return saturated(std::max<qint64>(digits - index - 1 - decimalPoint, 0));
}
