// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/valuedisplayformatbase.h>
#include <guibase/frequencies/unitprefix.h>

/// Writes and reads whole numbers of hertz in Hz, kHz, MHz or GHz, exactly: no frequency passes
/// through a floating-point number. It writes as many decimals as the frequency has, in the locale.
/// It reads a number with point or comma, then the unit, its first letter (in either case), or
/// nothing, and refuses fractions of a hertz. See docs/decisions/0005-texts-that-are-numbers.md.
class GUIBASE_EXPORT FrequencyDisplayFormat : public ValueDisplayFormatBase<qint64>
{
public:
    /// NoSuffix counts as BaseUnit.
    explicit FrequencyDisplayFormat(UnitPrefix::ESuffix unit);
    ~FrequencyDisplayFormat() override;

    std::unique_ptr<ValueDisplayFormatBase<qint64>> clone() const override;
    qint64 valueFromText(const QString& text, bool* ok) const override;
    QString textFromValue(qint64 value) const override;
    QString refusalReason(const QString& text) const override;
    /// The bounds with all decimals down to single hertz.
    std::vector<qint64> widestValues(const qint64& minimum, const qint64& maximum) const override;

    /// BaseUnit to Giga.
    UnitPrefix::ESuffix unit() const { return m_unit; }
    /// Trailing zeros are written up to so many decimals; 0 at first, at most down to single hertz.
    int minimumDecimals() const { return m_minimumDecimals; }
    void setMinimumDecimals(int decimals);

private:
    /// Decimals that the unit has above one hertz.
    int exponent() const;
    QString withUnit(const QString& number) const;
    QString ambiguityReason(const QString& text) const;

    UnitPrefix::ESuffix m_unit;
    int m_minimumDecimals = 0;
};
