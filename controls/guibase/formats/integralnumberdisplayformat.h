// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/numberdisplayformatbase.h>

/// Writes and reads integers in any base, exactly over the whole range of the type: in base 10 in
/// the locale, otherwise with ASCII letters, always with a minus sign for negative ones. A number
/// outside the range is refused. See docs/decisions/0005-texts-that-are-numbers.md.
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
