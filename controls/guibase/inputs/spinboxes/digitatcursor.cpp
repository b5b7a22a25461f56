// SPDX-License-Identifier: MIT
#include "digitatcursor_p.h"

#include <algorithm>

namespace {

bool isDigit(QChar c, int base)
{
    if (c.isDigit())
        return true;
    const char16_t lower = c.toLower().unicode();
    return base > 10 && lower >= u'a' && lower < u'a' + base - 10;
}

} // namespace

std::optional<DigitAtCursor> DigitAtCursor::find(const QString& bare, qsizetype cursor, int base,
                                                 const QString& groupSeparator)
{
    qsizetype end = bare.size();
    if (base == 10) {
        const qsizetype exponent = bare.indexOf(u'e', 0, Qt::CaseInsensitive);
        end = exponent < 0 ? end : exponent;
    }
    const auto isDigitAt = [&](qsizetype i) { return isDigit(bare[i], base); };
    qsizetype digit = std::clamp<qsizetype>(cursor, 0, end);
    if (digit == end || !isDigitAt(digit)) {
        const qsizetype start = digit;
        do
            --digit;
        while (digit >= 0 && !isDigitAt(digit));
        if (digit < 0) {
            digit = start;
            while (digit < end && !isDigitAt(digit))
                ++digit;
        }
        if (digit >= end)
            return std::nullopt;
    }
    DigitAtCursor result{bare, bare};
    for (qsizetype i = 0; i < end; ++i) {
        if (isDigitAt(i))
            result.one[i] = result.zero[i] = u'0';
    }
    result.one[digit] = u'1';
    if (!groupSeparator.isEmpty()) {
        result.one.remove(groupSeparator);
        result.zero.remove(groupSeparator);
    }
    return result;
}
