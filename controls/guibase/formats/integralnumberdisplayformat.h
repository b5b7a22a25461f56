// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/numberdisplayformatbase.h>

/// Writes and reads integers in any base, exactly over the whole range of the type.
///
/// Base 10 is written in the locale, other bases with ASCII letters; negative numbers have a minus
/// sign in every base. Whether useLocale() is set or not, it reads:
/// - what the locale (with useLocale()) or the C locale reads, base prefixes such as "0x" included;
/// - the locale's own and full-width digits, the typographic minus;
/// - in base 10 pasted group separators, where they can be nothing else: blanks and apostrophes
///   ("12 500"), or several points or commas ("1.234.567"). A single point or comma is refused.
///
/// A number outside the range of T is refused, never cut or rounded.
template <typename T>
class GUIBASE_EXPORT IntegralNumberDisplayFormat : public NumberDisplayFormatBase<T>
{
public:
    IntegralNumberDisplayFormat();
    ~IntegralNumberDisplayFormat() override;

    std::unique_ptr<ValueDisplayFormatBase<T>> clone() const override;
    T valueFromText(const QString& text, bool* ok) const override;
    QString textFromValue(T value) const override;
    QString refusalReason(const QString& text) const override;

    /// 2 to 36, 10 at first; other bases change nothing.
    int base() const { return m_base; }
    void setBase(int base);

private:
    int m_base = 10;
};

#define GUIBASE_EXTERN_FORMAT(T) extern template class IntegralNumberDisplayFormat<T>;
GUIBASE_FOR_EACH_INPUT_INTEGER(GUIBASE_EXTERN_FORMAT)
#undef GUIBASE_EXTERN_FORMAT
