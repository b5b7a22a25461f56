// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/valuedisplayformatbase.h>

/// What the formats of integers and of real numbers have in common.
template <typename T>
class GUIBASE_EXPORT NumberDisplayFormatBase : public ValueDisplayFormatBase<T>
{
public:
    ~NumberDisplayFormatBase() override;

    /// As QLocale::toString(double, char, int) takes it; -1, six decimals, at first. Integers do
    /// not use it.
    int precision() const { return m_precision; }
    void setPrecision(int precision) { m_precision = precision; }
    /// Whether positive numbers get a plus sign; false at first. Zero never gets one.
    bool showPlus() const { return m_showPlus; }
    void setShowPlus(bool show) { m_showPlus = show; }
    /// 'e', 'E', 'f' (at first), 'g' or 'G'; other characters change nothing. Integers do not use
    /// it.
    char format() const { return m_format; }
    void setFormat(char format);

protected:
    NumberDisplayFormatBase();
    NumberDisplayFormatBase(const NumberDisplayFormatBase& other);
    NumberDisplayFormatBase& operator=(const NumberDisplayFormatBase& other);

private:
    int m_precision = -1;
    bool m_showPlus = false;
    char m_format = 'f';
};

#define GUIBASE_EXTERN_FORMAT(T) extern template class NumberDisplayFormatBase<T>;
GUIBASE_FOR_EACH_INPUT_NUMBER(GUIBASE_EXTERN_FORMAT)
#undef GUIBASE_EXTERN_FORMAT
