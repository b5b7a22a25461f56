// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/displayformatlist.h>
#include <guibase/inputs/spinboxes/abstractspinbox.h>

#include <QPair>
#include <QValidator>

#include <functional>
#include <memory>

template <typename T>
class TypedInputValue;

namespace SpinBoxes {

/// Value, range, display formats and text handling of a spin box that holds a `T`.
///
/// The class has no meta-object: the signals are operations that the typed classes implement by
/// declaring them as signals. NaN and invalid date-times are ignored everywhere. A converter of a
/// format that throws counts as a text that cannot be read; in writing, it leaves the field empty.
template <typename T>
class GUIBASE_EXPORT SpinBoxBase : public AbstractSpinBox
{
public:
    ~SpinBoxBase() override;

    /// 0 at first; for date-times the start of the year 1970 in UTC.
    T value() const;
    /// The limits of the type at first.
    T minimum() const;
    T maximum() const;
    QPair<T, T> range() const { return {minimum(), maximum()}; }
    /// What the type can hold: for real numbers the finite ones, for date-times
    /// 1752-09-15T00:00:00Z to 9999-12-30T23:59:59.999Z, which have years of four digits in any
    /// zone.
    static T minimumLimit();
    static T maximumLimit();

    /// A value outside the range is ignored or, with QAbstractSpinBox::CorrectToNearestValue,
    /// replaced by the nearer bound; valueChanged() is then emitted even if that was the value.
    virtual void setValue(T value);
    /// The bounds in any order. A value outside moves to the nearer bound.
    void setRange(T first, T second);
    void setRange(const QPair<T, T>& range) { setRange(range.first, range.second); }
    void setMinimum(T bound) { setRange(bound, maximum()); }
    void setMaximum(T bound) { setRange(minimum(), bound); }

    /// Whether values are rounded to a multiple of the single step; false at first.
    bool isNormalizeValueToMultipleOfStep() const;
    void setNormalizeValueToMultipleOfStep(bool normalize);
    /// The value as it would be stored; the same value where there is no single step.
    virtual T normalizeValueToMultipleOfStep(T value) const;

    /// Tells why a value must not be taken; empty when it may.
    using ValueGuard = std::function<QString(const T& value)>;
    /// Judges what the user enters, by typing, by steps or through assistive technologies, before
    /// it is taken; an empty function, as at first, takes all. The reason is shown like that of a
    /// text that cannot be read. What the program sets is not judged.
    void setValueGuard(ValueGuard guard);

    /// The box owns the format; its index is the count of formats before. Null is ignored.
    void addDisplayFormat(std::unique_ptr<ValueDisplayFormatBase<T>> format);
    int countDisplayFormats() const;
    /// Null for an index out of range. Call updateEdit() after changing a format in use.
    ValueDisplayFormatBase<T>* displayFormatAt(int index) const;
    /// The default format when there is none at the current index.
    ValueDisplayFormatBase<T>* currentDisplayFormat() const;
    /// The index of the format that reads the sample or whose suffix it ends with. When `*ok` is
    /// false, the current index. `ok` may be null.
    int displayFormatIndexByTextSample(const QString& sample, bool* ok) const;

    QString textValue() const override;
    /// Acceptable or Invalid; changes neither text nor position.
    QValidator::State validate(QString& text, int& position) const override;
    StepEnabled stepEnabled() const override;
    void interpret() override;

    QVariant inputQuantity(Quantity quantity) const override;
    bool setInputValue(const QVariant& value) override;

    /// Signals of the typed classes, emitted after the change.
    virtual void valueChanged(T value) = 0;
    virtual void minimumChanged(T minimum) = 0;
    virtual void maximumChanged(T maximum) = 0;
    virtual void rangeChanged(T minimum, T maximum) = 0;

protected:
    /// What comes of reading a text.
    using Reading = DisplayFormatReading<T>;

    explicit SpinBoxBase(QWidget* parent);

    /// Whether the special text is shown in place of the value.
    bool isSpecialValue() const;
    /// Reads the text through the formats.
    virtual Reading readText(const QString& text) const;
    virtual QString textFromValue(T value) const;
    /// The value of the text and the index of its format; when `ok` is false, the current ones.
    T valueFromText(const QString& text, bool& ok, int& index) const;
    T validateAndInterpret(QString& text, int& position, QValidator::State& state,
                           int& index) const;
    typename DisplayFormatList<T>::Pairs buildDisplayFormatIndexPairs() const;

    QString refusalOf(const QString& text) const override;
    QStringList sizeSamples() const override;
    /// Sets what the user has chosen by a step, unless the guard refuses it.
    void enter(const T& value);
    /// After a step that leads out of the type: the bound, or nothing, as setValue() would do.
    void stepBeyondLimit(bool up);
    GUIBASE_NO_EXPORT const DisplayFormatList<T>& displayFormats() const;

private:
    friend class TypedInputValue<T>;
    struct GUIBASE_NO_EXPORT Private;

    GUIBASE_NO_EXPORT void adoptRange();
    GUIBASE_NO_EXPORT Reading read(const QString& text) const;
    GUIBASE_NO_EXPORT QString refusalOfReading(const QString& text, const Reading& reading) const;
    GUIBASE_NO_EXPORT QString refusalOfValue(const T& value) const;
    GUIBASE_NO_EXPORT QString refusalOfGuard(const T& value) const;
    GUIBASE_NO_EXPORT T normalized(T value) const;

    std::unique_ptr<Private> m_d;
};

#define GUIBASE_EXTERN_SPIN_BOX(T) extern template class SpinBoxBase<T>;
GUIBASE_FOR_EACH_INPUT_TYPE(GUIBASE_EXTERN_SPIN_BOX)
#undef GUIBASE_EXTERN_SPIN_BOX

} // namespace SpinBoxes
