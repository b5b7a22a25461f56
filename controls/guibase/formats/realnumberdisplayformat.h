// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/numberdisplayformatbase.h>

/// Writes and reads real numbers.
///
/// They are written in the locale. Read is what the locale (with useLocale()) or the C locale
/// reads, and whatever else can mean one number only:
/// - the decimal sign of the locale, or else point or comma: "1,5", "1234,500", "0,125";
/// - group separators of any kind next to a decimal sign of another kind, or several of a kind:
///   "1.234,5", "1 234.5", "1'234", "1.234.567";
/// - full-width characters and the typographic minus.
///
/// A single point or comma between one to three and exactly three digits ("1,500") may mean
/// thousands and is refused, unless it is the locale's decimal sign, or a point where the locale
/// parts thousands with something else than points. So are infinity, NaN, and groups that begin
/// with a zero ("0,475,500"). Digits may be of any script.
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
