// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/frequencies/unitprefix.h>
#include <guibase/guibase_export.h>

#include <valueframework/observable.h>

#include <QString>

#include <memory>

class ValueSelection;

/// One physical quantity, such as a frequency, held as a double and shown with a unit prefix. It
/// writes the quantity at several precisions, reads what a person types ("12.5 M"), and edits
/// single digits. Numbers have a decimal point, whatever the locale.
///
/// Operations with a parameter `v` store it first, in base units; the default NoValue leaves the
/// stored quantity. Not copyable, because it observes the unit value. GUI thread only.
class GUIBASE_EXPORT SuffixedDouble : public IObserver
{
public:
    /// The unit prefixes.
    using ESuffix = UnitPrefix::ESuffix;
    using enum UnitPrefix::ESuffix;

    /// One row of the converter table.
    struct ConverterSet
    {
        QString suffix;      ///< " MHz"; a single blank for NoSuffix.
        QString pureSuffix;  ///< "MHz"; empty for NoSuffix.
        double factor = 1;   ///< Base units per unit of this row.
        int decimals = 0;    ///< Decimals shown in this row's unit.
        int indexOffset = 0; ///< Power of ten of the lowest digit that can be edited.
    };

    /// Stands for "no new value" wherever a quantity is passed.
    static constexpr double NoValue = -9999.765;

    /// `unit` is the text of the base unit ("Hz") and `factor` the ratio of neighbouring prefixes
    /// (1000). Takes over the application's frequency resolution, which rewrites the table, and
    /// follows GuiBase::GetFrequencyUnit() until another unit is connected.
    ///
    /// Units, factors and decimals stand in a table with a row for each ESuffix. With
    /// `ownsConverters` the object has one of its own. All others of the process share one, so that
    /// SetResolution(), SetStringSuffix() and SetFactor() of one of them change them all.
    SuffixedDouble(const QString& unit, int factor, bool ownsConverters);
    SuffixedDouble(const SuffixedDouble&) = delete;
    SuffixedDouble& operator=(const SuffixedDouble&) = delete;
    ~SuffixedDouble() override;

    // --- Connection to a unit ------------------------------------------------------------------

    /// Stops observing. With `connect` the application's frequency unit is observed (again) and
    /// taken over at once; otherwise `suffix` is set as by SetSuffix().
    void ConnectToGuiCentral(bool connect, ESuffix suffix = NoSuffix);
    /// Observes the ValueSelection at this path of the value tree instead of what was observed
    /// before, and takes over its unit. False, observing nothing, when there is none.
    bool SetSuffix_ValuePath(const QString& path);
    /// Takes over the unit in the name of the current item of the observed selection. A name
    /// without a known unit changes nothing.
    void SetSuffixFromValue();
    void Update(Observable* observable, TChangeCode code) override;

    // --- Table and units -----------------------------------------------------------------------

    /// Rewrites the table for this resolution, with this object's unit and factor: BaseUnit shows
    /// and edits single base units; any other shows and edits kilo units.
    void SetResolution(ESuffix resolution);
    /// Rewrites the unit texts of the table.
    void SetStringSuffix(const QString& unit);
    /// Rewrites the factors of the table: 1, f, f² and f³. The products wrap at 32 bits: use
    /// -1290 to 1290.
    void SetFactor(int factor);
    /// The unit that is shown, and assumed for typed numbers without a unit. NoSuffix and numbers
    /// outside the enumeration change nothing; BaseUnit means Kilo at the resolution Kilo.
    void SetSuffix(ESuffix suffix);
    /// The unit in which the quantity is held; a stored one is not converted. Numbers outside the
    /// enumeration change nothing.
    void SetInternalSuffix(ESuffix suffix);
    /// The count of digits of GetPureNumbers(), 15 at start; kept within 0 to 4096. Takes effect at
    /// the next change of the quantity.
    void SetPureNumbersLength(int length);
    /// The shown unit with a leading blank (" MHz").
    QString GetSuffix() const;
    /// The shown unit ("MHz").
    QString GetPureSuffix() const;

    // --- Value ---------------------------------------------------------------------------------

    /// Stores the quantity, in base units.
    void SetValue(double v);
    /// The quantity in base units.
    double GetValue() const;
    /// The number in the text times the factor of the first unit out of "GHz", "MHz", "kHz" that
    /// occurs in it, in internal units; without one times the factor of the shown unit, in base
    /// units. Other Latin letters are ignored. A text that is no number gives 0.
    double GetValue(const QString& text) const;
    /// Stores what a person typed: a number and perhaps a unit, of which one letter in either case
    /// is enough: k, m (mega), g or h (base unit; kilo at the resolution Kilo). Without a letter
    /// the shown unit counts. A text that is no number stores 0; one that gives NoValue nothing.
    void SetFrequencyString(const QString& text);
    /// The decimals of the shown unit.
    int GetDotPosition(double v = NoValue);

    // --- Formatting, in the shown unit ---------------------------------------------------------

    /// All decimals: "12.500000", "12.500000 MHz".
    QString GetStringNoSuffix(double v = NoValue);
    QString GetString(double v = NoValue);
    /// Three decimals less, and two blanks before the unit: "12.500", "12.500  MHz".
    QString GetShortStringNoSuffix(double v = NoValue);
    QString GetShortString(double v = NoValue);
    /// Up to five decimals more, where they are not zero.
    QString GetExtraStringNoSuffix(double v = NoValue);
    QString GetExtraString(double v = NoValue);
    /// All decimals without up to three trailing zeros: "12.500", "12.500 MHz".
    QString GetSignificantStringNoSuffix(double v = NoValue);
    QString GetSignificantString(double v = NoValue);
    /// In the unit that makes the number shortest, the smaller one of equals: "12.5 MHz". The ends
    /// of the ranges of double and float are "MAXDOUBLE", "MINDOUBLE", "MAXFLOAT" and "MINFLOAT".
    QString GetShortestString(double v = NoValue);
    /// All decimals or the significant ones, as GuiBase::GetShowFrequencyInHz() says.
    QString GetDisplayString(double v = NoValue);
    QString GetLabelString(double v = NoValue);

    /// Whether the text of GetShortString() or GetString() tells the quantity exactly (to 1e-12
    /// base units).
    bool IsShortSuffixedOk(double v);
    bool IsLongSuffixedOk(double v);

    // --- Editing of digits ---------------------------------------------------------------------
    //
    // Digits are powers of ten in internal units. They are counted from 0, the lowest one that can
    // be edited at the shown unit and resolution. Outside the digits the null character is read,
    // and setting changes none.

    /// The quantity in internal units, rounded to an integer and filled with zeros in front.
    QString GetPureNumbers(double v = NoValue);
    /// The digit number `index` - 1 (1 is the lowest one), or a blank for a zero in front of the
    /// shown number.
    QChar GetCharAt(int index);
    /// Overwrites digit `index` and makes it the current one; -1 means the current digit. The
    /// quantity becomes an integer; a character that makes the digits no number makes it 0.
    void SetCharAt(QChar character, int index);
    /// -1 keeps the current digit.
    void SetCurrentIndex(int index);
    int GetCurrentIndex() const;
    void SetCurrentIndex2Max();
    /// Moves to the next higher or lower digit; false, without a change, at the end.
    bool incrementIndex();
    bool decrementIndex();
    /// Adds one at the digit `index`; -1 means the current one.
    void increment(int index);
    /// Takes one off at the digit `index` (-1: the current one), or at the highest one below it
    /// that leaves the quantity positive or zero; that one becomes current. Without one nothing
    /// changes.
    void decrement(int index);
    /// The position of the digit in the text of GetString().
    int GetRealSelectPosition(int index);

private:
    void observeUnitValue(ValueSelection* unitValue);
    void stopObserving();

    const ConverterSet& row(ESuffix suffix) const { return m_converters[suffix]; }
    const ConverterSet& currentRow() const { return row(m_currentSuffix); }
    ESuffix coarsened(ESuffix suffix) const;
    void store(double v);
    double storedQuantity(double v);
    double toInternal(double baseUnits) const;

    double parse(QStringView text, QStringView appended, ESuffix defaultSuffix) const;
    ESuffix typedSuffix(QStringView text) const;
    QString numberText(const ConverterSet& unit, int precision) const;
    QString significantText(const ConverterSet& unit) const;
    bool tellsQuantity(const QString& text, double v) const;
    static void Remove0AfterDot(QString& text, int max);

    double GetDecrementValue();
    int GetRealNumericLength();
    void ClearPureNumbers();

    std::unique_ptr<ConverterSet[]> m_ownConverters;
    ConverterSet* m_converters; // The own table or the common one.
    ESuffix m_currentSuffix = Mega;
    ESuffix m_internalSuffix = BaseUnit;
    int m_pureNumbersLength = 15;
    double m_value = 0;     // In units of m_internalSuffix.
    int m_currentIndex = 0; // Power of ten in internal units.
    QString m_pureNumbers;  // Empty when it is to be made anew.
    QString m_unit;
    int m_factor;
    ValueSelection* m_unitValue = nullptr; // Not owned; it announces its end.
    ESuffix m_resolution = BaseUnit;
};
