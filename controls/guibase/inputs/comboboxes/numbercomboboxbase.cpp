// SPDX-License-Identifier: MIT
#include "numbercomboboxbase.h"

#include "closestitem_p.h"

#include <guibase/inputs/typedinputvariant.h>
#include <guibase/inputs/typedvalue.h>

#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>
#include <limits>
#include <utility>

namespace ComboBoxes {

using TypedValue::isValue;

template <typename T>
NumberComboBoxBase<T>::NumberComboBoxBase(QWidget* parent)
    : AbstractComboBox(parent)
    , m_minimum(std::numeric_limits<T>::lowest())
    , m_maximum(std::numeric_limits<T>::max())
    , m_specialValue(std::numeric_limits<T>::lowest())
    , m_sortedItems(std::make_unique<SortedItems<T>>())
{}

template <typename T>
NumberComboBoxBase<T>::~NumberComboBoxBase() = default;

template <typename T>
void NumberComboBoxBase<T>::setValue(T value)
{
    if (!isValue(value))
        return;
    if (hasSpecialValue() && value < m_minimum)
        value = m_specialValue;
    else
        value = std::clamp(value, m_minimum, m_maximum);
    if (value == m_value)
        return;
    {
        const QSignalBlocker blocker(this);
        selectClosestIndexForValue(value);
    }
    m_value = value;
    refusalMark().clear();
    const QPointer<QObject> guard(this);
    switchDisplayFormatIfAutomatic();
    if (!guard)
        return;
    showValue();
    tellAccessibleValue();
    valueChanged(value);
}

template <typename T>
void NumberComboBoxBase<T>::moveTo(T value)
{
    if (value == m_value)
        return;
    m_value = value;
    refusalMark().clear();
    showValue();
    tellAccessibleValue();
    valueChanged(value);
}

template <typename T>
void NumberComboBoxBase<T>::setRange(T first, T second)
{
    const TypedValue::RangeChange change =
        TypedValue::changeRange(m_minimum, m_maximum, first, second);
    if (!change)
        return;
    const QPointer<QObject> guard(this);
    if (change.ofMinimum) {
        if (m_value < m_minimum)
            moveTo(hasSpecialValue() ? m_specialValue : m_minimum);
        if (guard)
            minimumChanged(m_minimum);
    }
    if (guard && change.ofMaximum) {
        if (m_maximum < m_value)
            moveTo(m_maximum);
        if (guard)
            maximumChanged(m_maximum);
    }
    if (guard)
        rangeChanged(m_minimum, m_maximum);
}

template <typename T>
void NumberComboBoxBase<T>::setSpecialValue(T value)
{
    if (!isValue(value))
        return;
    const bool isTyping = isTextChanged();
    m_specialValue = value;
    if (!isTyping)
        showValue();
}

template <typename T>
void NumberComboBoxBase<T>::setSpecialValueText(const QString& text, T value)
{
    setSpecialValue(value);
    setSpecialValueText(text);
}

template <typename T>
void NumberComboBoxBase<T>::addDisplayFormat(std::unique_ptr<ValueDisplayFormatBase<T>> format)
{
    m_formats.add(std::move(format));
    forgetItemValues();
    // The current index may have named this format before it was there.
    if (currentDisplayFormatIndex() == countDisplayFormats() - 1)
        showValue();
}

template <typename T>
ValueDisplayFormatBase<T>* NumberComboBoxBase<T>::displayFormatAt(int index) const
{
    forgetItemValues(); // The caller may change it.
    return m_formats.at(index);
}

template <typename T>
ValueDisplayFormatBase<T>* NumberComboBoxBase<T>::currentDisplayFormat() const
{
    forgetItemValues();
    return m_formats.current(currentDisplayFormatIndex());
}

template <typename T>
int NumberComboBoxBase<T>::displayFormatIndexByTextSample(const QString& sample, bool* ok) const
{
    const Reading reading = readText(sample);
    if (ok != nullptr)
        *ok = reading.isKnown();
    return reading.index;
}

template <typename T>
bool NumberComboBoxBase<T>::isSpecialText(const QString& text) const
{
    return hasSpecialValue() && text.trimmed() == specialValueText();
}

template <typename T>
typename NumberComboBoxBase<T>::Reading NumberComboBoxBase<T>::readText(const QString& text) const
{
    if (isSpecialText(text))
        return {m_specialValue, currentDisplayFormatIndex(), Reading::Read};
    return m_formats.read(text, currentDisplayFormatIndex(), m_value);
}

template <typename T>
QString NumberComboBoxBase<T>::textFromValue(T value) const
{
    return hasSpecialValue() && value == m_specialValue
               ? specialValueText()
               : m_formats.write(value, currentDisplayFormatIndex());
}

template <typename T>
T NumberComboBoxBase<T>::valueFromText(const QString& text, bool& ok, int& index) const
{
    return readText(text).unpacked(ok, index);
}

template <typename T>
T NumberComboBoxBase<T>::validateAndInterpret(QString& text, int&, QValidator::State& state,
                                              int& index) const
{
    bool ok = false;
    const T value = valueFromText(text, ok, index);
    state = ok && isInRange(value) ? QValidator::Acceptable : QValidator::Invalid;
    return value;
}

template <typename T>
typename DisplayFormatList<T>::Pairs NumberComboBoxBase<T>::buildDisplayFormatIndexPairs() const
{
    return m_formats.trialOrder(currentDisplayFormatIndex());
}

template <typename T>
bool NumberComboBoxBase<T>::isReadable(const QString& text) const
{
    return m_formats.refusal(text, readText(text)).isEmpty();
}

template <typename T>
void NumberComboBoxBase<T>::interpret(int itemIndex)
{
    if (lineEdit() == nullptr)
        return;
    const bool wasChanged = isTextChanged();
    const QString text = lineEdit()->text(); // The displayed text has blanks for line breaks.
    const Reading reading = readText(text);
    // The text that goes with the last item is nobody's input.
    const bool isInput = wasChanged && (itemIndex >= 0 || !text.isEmpty() || isCommitting());
    const QString refusal = isInput ? m_formats.refusal(text, reading) : QString();
    const QPointer<QObject> guard(this);
    if (wasChanged) {
        refusalMark().clear();
        if (reading.outcome == Reading::Read)
            setValue(reading.value);
    }
    if (guard)
        setLastUsedDisplayFormatIndex(reading.index);
    if (!guard)
        return;
    showValue();
    refusalMark().show(refusal);
}

template <typename T>
void NumberComboBoxBase<T>::chooseItem(int itemIndex)
{
    if (isTextChanged()) {
        interpret(itemIndex);
        return;
    }
    // The value may differ from the item's although both are shown by the same text.
    const Reading reading = readText(itemText(itemIndex));
    if (reading.outcome == Reading::Read)
        setValue(reading.value);
}

template <typename T>
void NumberComboBoxBase<T>::readItems()
{
    m_itemValues.clear();
    m_standIns.clear();
    m_itemValues.reserve(static_cast<std::size_t>(count()));
    for (int i = 0; i < count(); ++i) {
        const QString text = itemText(i);
        const Reading reading = readText(text);
        const bool isSpecial = isSpecialText(text);
        if (isSpecial || reading.outcome != Reading::Read)
            m_standIns.push_back({m_itemValues.size(), isSpecial});
        m_itemValues.push_back(reading.value);
    }
    m_sortedItems->set(m_itemValues);
}

template <typename T>
void NumberComboBoxBase<T>::selectClosestIndexForValue(T value)
{
    if (count() == 0)
        return;
    if (takeItemsChanged())
        readItems();
    for (const StandIn& standIn : m_standIns)
        m_itemValues[standIn.index] = standIn.isSpecial ? m_specialValue : m_value;
    const bool isSorted = m_standIns.empty() && m_sortedItems->canFind(value);
    const auto closest = static_cast<int>(isSorted ? m_sortedItems->closest(value)
                                                   : closestItem<T>(m_itemValues, value));
    if (closest != currentIndex())
        setCurrentIndex(closest);
}

template <typename T>
T NumberComboBoxBase<T>::itemValue(int index, bool& ok) const
{
    int format = -1;
    ok = false;
    return index >= 0 && index < count() ? valueFromText(itemText(index), ok, format) : m_value;
}

template <typename T>
QVariant NumberComboBoxBase<T>::inputQuantity(Quantity quantity) const
{
    return TypedInputVariant::quantityOf(quantity, m_value, m_minimum, m_maximum);
}

template <typename T>
bool NumberComboBoxBase<T>::setInputValue(const QVariant& value)
{
    const std::optional<T> typed = TypedInputVariant::fromVariant<T>(value);
    if (!typed || !isEnabled())
        return false;
    setValue(*typed);
    return true;
}

#define INSTANTIATE(T) template class NumberComboBoxBase<T>;
GUIBASE_FOR_EACH_INPUT_NUMBER(INSTANTIATE)
#undef INSTANTIATE

} // namespace ComboBoxes
