// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/numberdisplayformatbase.h>

/// Writes and reads real numbers.
///
/// They are written in the locale. They are read by the rules of the locale with useLocale(), or
/// else of the C locale: then "1.500" is 1.5 everywhere, so a format that writes group separators
/// must use its locale. Beyond that it reads whatever can mean one number only:
/// - the decimal sign of the locale, or else point or comma: "1,5", "1234,500", "0,125";
/// - group separators of any kind next to a decimal sign of another kind, or several of a kind:
///   "1.234,5", "1 234.5", "1'234", "1.234.567";
/// - digits of any script, full-width characters, the typographic minus.
///
/// A single separator in front of three digits ("1,500") may mean thousands. It is refused unless
/// it is the decimal sign of the locale or, for a point, where the locale parts thousands with
/// another sign. Infinity, NaN, and groups that begin with a zero ("0,475,500") are refused, too.
template <typename T>
class GUIBASE_EXPORT RealNumberDisplayFormat : public NumberDisplayFormatBase<T>
{
public:
    RealNumberDisplayFormat();
    ~RealNumberDisplayFormat() override;

    std::unique_ptr<ValueDisplayFormatBase<T>> clone() const override;
    T valueFromText(const QString& text, bool* ok) const override;
    QString textFromValue(T value) const override;
    QString refusalReason(const QString& text) const override;
    /// The bounds and, where texts are as long as the number is odd, numbers with all digits.
    std::vector<T> widestValues(const T& minimum, const T& maximum) const override;
};

extern template class RealNumberDisplayFormat<double>;
