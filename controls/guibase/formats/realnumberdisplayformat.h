// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/numberdisplayformatbase.h>

/// Writes real numbers in the locale, and reads them by its rules with useLocale() or else by those
/// of the C locale. Beyond that it reads whatever can mean one number only ("1.234,5"), and refuses
/// what can mean two ("1,500"). See docs/decisions/0005-texts-that-are-numbers.md.
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
