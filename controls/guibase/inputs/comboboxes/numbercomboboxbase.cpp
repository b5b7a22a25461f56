// SPDX-License-Identifier: MIT
#include "numbercomboboxbase.h"

#include "closestitem_p.h"

#include <guibase/inputs/typedinputbody.h>
#include <guibase/inputs/typedinputvalue.h>

#include <QSignalBlocker>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace ComboBoxes {

namespace {

/// An item whose value is that of another member.
struct StandIn
{
    std::size_t index;
    bool isSpecial; ///< Else the item cannot be read, and counts as the current value.
};

} // namespace

template <typename T>
struct NumberComboBoxBase<T>::Private : TypedInputValue<T>
{
    using Limits = std::numeric_limits<T>;

    Private()
        : TypedInputValue<T>(T(0), Limits::lowest(), Limits::max())
    {}

    T specialValue = Limits::lowest();
    std::vector<T> itemValues;
    SortedItems<T> sortedItems;
    std::vector<StandIn> standIns;
};

template <typename T>
NumberComboBoxBase<T>::NumberComboBoxBase(QWidget* parent)
    : AbstractComboBox(parent)
    , m_d(std::make_unique<Private>())
{}

template <typename T>
NumberComboBoxBase<T>::~NumberComboBoxBase() = default;

template <typename T>
T NumberComboBoxBase<T>::value() const
{
    return m_d->value;
}

template <typename T>
T NumberComboBoxBase<T>::minimum() const
{
    return m_d->minimum;
}

template <typename T>
T NumberComboBoxBase<T>::maximum() const
{
    return m_d->maximum;
}

template <typename T>
void NumberComboBoxBase<T>::setValue(T value)
{
    constexpr bool maySwitchFormat = true;
    if (!m_d->isValue(value))
        return;
    if (hasSpecialValue() && value < m_d->minimum)
        value = m_d->specialValue;
    else
        value = std::clamp(value, m_d->minimum, m_d->maximum);
    if (value == m_d->value)
        return;
    {
        const QSignalBlocker blocker(this);
        selectClosestIndexForValue(value);
    }
    m_d->moveTo(*this, value, maySwitchFormat);
}

template <typename T>
void NumberComboBoxBase<T>::setRange(T first, T second)
{
    m_d->setRange(*this, first, second,
                  hasSpecialValue() ? std::optional<T>(m_d->specialValue) : std::nullopt);
}

template <typename T>
T NumberComboBoxBase<T>::specialValue() const
{
    return m_d->specialValue;
}

template <typename T>
void NumberComboBoxBase<T>::setSpecialValue(T value)
{
    if (!m_d->isValue(value))
        return;
    const bool isTyping = isTextChanged();
    m_d->specialValue = value;
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
    m_d->formats.add(std::move(format));
    forgetItemValues();
    // The current index may have named this format before it was there.
    if (currentDisplayFormatIndex() == countDisplayFormats() - 1)
        updateEdit();
}

template <typename T>
int NumberComboBoxBase<T>::countDisplayFormats() const
{
    return m_d->formats.count();
}

template <typename T>
ValueDisplayFormatBase<T>* NumberComboBoxBase<T>::displayFormatAt(int index) const
{
    forgetItemValues(); // The caller may change it.
    return m_d->formats.at(index);
}

template <typename T>
ValueDisplayFormatBase<T>* NumberComboBoxBase<T>::currentDisplayFormat() const
{
    forgetItemValues();
    return m_d->formats.current(currentDisplayFormatIndex());
}

template <typename T>
typename DisplayFormatList<T>::Pairs NumberComboBoxBase<T>::buildDisplayFormatIndexPairs() const
{
    return m_d->formats.trialOrder(currentDisplayFormatIndex());
}

template <typename T>
bool NumberComboBoxBase<T>::isSpecialText(const QString& text) const
{
    return hasSpecialValue() && text.trimmed() == specialValueText();
}

template <typename T>
QString NumberComboBoxBase<T>::textValue() const
{
    return textFromValue(m_d->value);
}

template <typename T>
QString NumberComboBoxBase<T>::textFromValue(T value) const
{
    return hasSpecialValue() && value == m_d->specialValue
               ? specialValueText()
               : m_d->formats.write(value, currentDisplayFormatIndex());
}

template <typename T>
typename NumberComboBoxBase<T>::Reading NumberComboBoxBase<T>::readText(const QString& text) const
{
    if (isSpecialText(text))
        return {m_d->specialValue, currentDisplayFormatIndex(), Reading::Read};
    return m_d->formats.read(text, currentDisplayFormatIndex(), m_d->value);
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
T NumberComboBoxBase<T>::valueFromText(const QString& text, bool& ok, int& index) const
{
    return readText(text).unpacked(ok, index);
}

template <typename T>
T NumberComboBoxBase<T>::validateAndInterpret(QString& text, int&, QValidator::State& state,
                                              int& index) const
{
    const Reading reading = readText(text);
    state = m_d->stateOf(reading, index);
    return reading.value;
}

template <typename T>
QString NumberComboBoxBase<T>::refusalOf(const QString& text) const
{
    return m_d->formats.refusal(text, readText(text));
}

template <typename T>
void NumberComboBoxBase<T>::interpret(int itemIndex)
{
    if (lineEdit() == nullptr)
        return;
    const bool isChanged = isTextChanged();
    const QString text = lineEdit()->text(); // The displayed text has blanks for line breaks.
    const Reading reading = readText(text);
    // A text that disappears with the last item is nobody's input.
    const bool isInput = isChanged && (itemIndex >= 0 || !text.isEmpty() || isCommitting());
    body().take(*this, reading, isChanged,
                isInput ? m_d->formats.refusal(text, reading) : QString());
}

template <typename T>
void NumberComboBoxBase<T>::takeItemText(const QString& text)
{
    const Reading reading = readText(text);
    body().take(*this, reading, true, m_d->formats.refusal(text, reading));
}

template <typename T>
void NumberComboBoxBase<T>::readItems()
{
    m_d->itemValues.clear();
    m_d->standIns.clear();
    m_d->itemValues.reserve(static_cast<std::size_t>(count()));
    for (int i = 0; i < count(); ++i) {
        const QString text = itemText(i);
        const Reading reading = readText(text);
        const bool isSpecial = isSpecialText(text);
        if (isSpecial || reading.outcome != Reading::Read)
            m_d->standIns.push_back({m_d->itemValues.size(), isSpecial});
        m_d->itemValues.push_back(reading.value);
    }
    m_d->sortedItems.set(m_d->itemValues);
}

template <typename T>
void NumberComboBoxBase<T>::selectClosestIndexForValue(T value)
{
    if (count() == 0)
        return;
    if (takeItemsChanged())
        readItems();
    for (const StandIn& standIn : m_d->standIns)
        m_d->itemValues[standIn.index] = standIn.isSpecial ? m_d->specialValue : m_d->value;
    const bool isSorted = m_d->standIns.empty() && m_d->sortedItems.canFind(value);
    const auto closest = static_cast<int>(isSorted ? m_d->sortedItems.closest(value)
                                                   : closestItem<T>(m_d->itemValues, value));
    if (closest != currentIndex())
        setCurrentIndex(closest);
}

template <typename T>
T NumberComboBoxBase<T>::itemValue(int index, bool& ok) const
{
    int format = -1;
    ok = false;
    return index >= 0 && index < count() ? valueFromText(itemText(index), ok, format) : m_d->value;
}

template <typename T>
QVariant NumberComboBoxBase<T>::inputQuantity(Quantity quantity) const
{
    return m_d->quantity(quantity);
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
