// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/displayformatlist.h>
#include <guibase/inputs/comboboxes/abstractcombobox.h>

#include <QPair>
#include <QValidator>

#include <memory>

template <typename T>
class TypedInputValue;

namespace ComboBoxes {

/// Value, range, special value, display formats and text handling of a combo box that holds a `T`.
///
/// The class has no meta-object: the signals are operations that the typed classes implement by
/// declaring them as signals. NaN is ignored everywhere. A converter of a format that throws counts
/// as a text that cannot be read or, when writing, leaves the field empty.
template <typename T>
class GUIBASE_EXPORT NumberComboBoxBase : public AbstractComboBox
{
public:
    ~NumberComboBoxBase() override;

    /// 0 at first.
    T value() const;
    /// The finite limits of the type at first.
    T minimum() const;
    T maximum() const;
    QPair<T, T> range() const { return {minimum(), maximum()}; }

    /// A value outside the range is replaced by the nearer bound; below the minimum by the special
    /// value if there is a text for it. Selects the closest item.
    virtual void setValue(T value);
    /// The bounds in any order. A value outside moves to the nearer bound; below the minimum to the
    /// special value if there is a text for it. Then valueChanged() is emitted even if the special
    /// value was the value before. The current item stays.
    virtual void setRange(T first, T second);
    void setRange(const QPair<T, T>& range) { setRange(range.first, range.second); }
    void setMinimum(T bound) { setRange(bound, maximum()); }
    void setMaximum(T bound) { setRange(minimum(), bound); }

    /// What the special-value text stands for; the lowest value of the type at first.
    T specialValue() const;
    void setSpecialValue(T value);
    using AbstractComboBox::setSpecialValueText;
    void setSpecialValueText(const QString& text, T value);

    /// The box owns the format; its index is the count of formats before. Null is ignored.
    void addDisplayFormat(std::unique_ptr<ValueDisplayFormatBase<T>> format);
    int countDisplayFormats() const;
    /// Null for an index out of range. Call updateEdit() after changing a format in use.
    ValueDisplayFormatBase<T>* displayFormatAt(int index) const;
    /// The default format when there is none at the current index.
    ValueDisplayFormatBase<T>* currentDisplayFormat() const;
    /// The index of the format that reads the sample or whose suffix it ends with. When `*ok` is
    /// false, the current index. `ok` may be null.
    virtual int displayFormatIndexByTextSample(const QString& sample, bool* ok) const;

    /// Selects the item whose value lies closest; the later one of equal distances, but the first
    /// one that is equal. Items that cannot be read count as the current value. Distances are those
    /// of the type: where it is too small for one, the item counts as close.
    ///
    /// What the items read as is remembered until items or formats change.
    virtual void selectClosestIndexForValue(T value);
    /// The value that the item reads as; the current one, with `ok` false, when it cannot be read.
    T itemValue(int index, bool& ok) const;

    QString textValue() const override;
    void interpret(int itemIndex) override;
    using AbstractComboBox::interpret;

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

    explicit NumberComboBoxBase(QWidget* parent);

    /// The text in the current format.
    QString textFromValue(T value) const;
    /// The value of the text and the index of its format; when `ok` is false, the current ones.
    T valueFromText(const QString& text, bool& ok, int& index) const;
    T validateAndInterpret(QString& text, int& position, QValidator::State& state,
                           int& index) const;
    typename DisplayFormatList<T>::Pairs buildDisplayFormatIndexPairs() const;

    QString refusalOf(const QString& text) const override;
    void takeItemText(const QString& text) override;

private:
    friend class TypedInputValue<T>;
    struct GUIBASE_NO_EXPORT Private;

    GUIBASE_NO_EXPORT bool hasSpecialValue() const { return !specialValueText().isEmpty(); }
    GUIBASE_NO_EXPORT bool isSpecialText(const QString& text) const;
    GUIBASE_NO_EXPORT Reading readText(const QString& text) const;
    GUIBASE_NO_EXPORT void adoptRange() {}
    GUIBASE_NO_EXPORT void readItems();

    std::unique_ptr<Private> m_d;
};

#define GUIBASE_EXTERN_COMBO_BOX(T) extern template class NumberComboBoxBase<T>;
GUIBASE_FOR_EACH_INPUT_NUMBER(GUIBASE_EXTERN_COMBO_BOX)
#undef GUIBASE_EXTERN_COMBO_BOX

} // namespace ComboBoxes
