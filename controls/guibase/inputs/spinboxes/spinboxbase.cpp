// SPDX-License-Identifier: MIT
#include "spinboxbase.h"

#include <guibase/inputs/typedinputvariant.h>
#include <guibase/inputs/typedvalue.h>

#include <QCoreApplication>
#include <QLineEdit>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

namespace {

/// Real numbers can have hundreds of digits: the width of a field is that of at most so many
/// characters.
constexpr qsizetype longestRealSample = 18;

template <typename T>
T initialValue()
{
    if constexpr (std::is_same_v<T, QDateTime>)
        return QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    else
        return T(0);
}

} // namespace

namespace SpinBoxes {

using TypedValue::isValue;

template <typename T>
SpinBoxBase<T>::SpinBoxBase(QWidget* parent)
    : AbstractSpinBox(parent)
    , m_value(initialValue<T>())
    , m_minimum(minimumLimit())
    , m_maximum(maximumLimit())
{}

template <typename T>
SpinBoxBase<T>::~SpinBoxBase() = default;

template <typename T>
T SpinBoxBase<T>::minimumLimit()
{
    if constexpr (std::is_same_v<T, QDateTime>)
        return QDateTime(QDate(1752, 9, 15), QTime(0, 0), Qt::UTC);
    else
        return std::numeric_limits<T>::lowest();
}

template <typename T>
T SpinBoxBase<T>::maximumLimit()
{
    if constexpr (std::is_same_v<T, QDateTime>)
        return QDateTime(QDate(9999, 12, 30), QTime(23, 59, 59, 999), Qt::UTC);
    else
        return std::numeric_limits<T>::max();
}

template <typename T>
T SpinBoxBase<T>::normalized(T value) const
{
    return m_normalize ? normalizeValueToMultipleOfStep(value) : value;
}

template <typename T>
T SpinBoxBase<T>::normalizeValueToMultipleOfStep(T value) const
{
    return value;
}

template <typename T>
void SpinBoxBase<T>::setValue(T value)
{
    if (!isValue(value))
        return;
    value = normalized(value);
    if (value == m_value)
        return;
    if (!isInRange(value)) {
        if (correctionMode() == QAbstractSpinBox::CorrectToPreviousValue)
            return;
        value = value < m_minimum ? m_minimum : m_maximum;
        if (value == m_value)
            return;
    }
    m_value = value;
    refusalMark().clear();
    const QPointer<QObject> guard(this);
    switchDisplayFormatIfAutomatic();
    if (!guard)
        return;
    updateEdit();
    tellAccessibleValue();
    valueChanged(value);
}

template <typename T>
void SpinBoxBase<T>::moveToBound(const T& bound)
{
    m_value = bound;
    refusalMark().clear();
    updateEdit();
    tellAccessibleValue();
    valueChanged(bound);
}

template <typename T>
void SpinBoxBase<T>::setRange(T first, T second)
{
    const TypedValue::RangeChange change =
        TypedValue::changeRange(m_minimum, m_maximum, first, second);
    if (!change)
        return;
    updateGeometry();
    updateButtons();
    const QPointer<QObject> guard(this);
    if (change.ofMinimum) {
        if (m_value < m_minimum)
            moveToBound(m_minimum);
        if (guard)
            minimumChanged(m_minimum);
    }
    if (guard && change.ofMaximum) {
        if (m_maximum < m_value)
            moveToBound(m_maximum);
        if (guard)
            maximumChanged(m_maximum);
    }
    if (guard)
        rangeChanged(m_minimum, m_maximum);
}

template <typename T>
void SpinBoxBase<T>::setNormalizeValueToMultipleOfStep(bool normalize)
{
    if (normalize == m_normalize)
        return;
    m_normalize = normalize;
    if (normalize)
        setValue(m_value);
}

template <typename T>
void SpinBoxBase<T>::addDisplayFormat(std::unique_ptr<ValueDisplayFormatBase<T>> format)
{
    m_formats.add(std::move(format));
    // The current index may have named this format before it was there.
    if (currentDisplayFormatIndex() == countDisplayFormats() - 1)
        updateEdit();
}

template <typename T>
ValueDisplayFormatBase<T>* SpinBoxBase<T>::currentDisplayFormat() const
{
    return m_formats.current(currentDisplayFormatIndex());
}

template <typename T>
int SpinBoxBase<T>::displayFormatIndexByTextSample(const QString& sample, bool* ok) const
{
    const Reading reading = readText(sample);
    if (ok != nullptr)
        *ok = reading.isKnown();
    return reading.index;
}

template <typename T>
typename SpinBoxBase<T>::Reading SpinBoxBase<T>::readText(const QString& text) const
{
    return m_formats.read(text, currentDisplayFormatIndex(), m_value);
}

template <typename T>
QString SpinBoxBase<T>::textFromValue(T value) const
{
    return m_formats.write(value, currentDisplayFormatIndex());
}

template <typename T>
T SpinBoxBase<T>::valueFromText(const QString& text, bool& ok, int& index) const
{
    return readText(text).unpacked(ok, index);
}

template <typename T>
T SpinBoxBase<T>::validateAndInterpret(QString& text, int&, QValidator::State& state,
                                       int& index) const
{
    bool ok = false;
    const T value = valueFromText(text, ok, index);
    state = ok && isInRange(value) ? QValidator::Acceptable : QValidator::Invalid;
    return value;
}

template <typename T>
typename DisplayFormatList<T>::Pairs SpinBoxBase<T>::buildDisplayFormatIndexPairs() const
{
    return m_formats.trialOrder(currentDisplayFormatIndex());
}

template <typename T>
QValidator::State SpinBoxBase<T>::validate(QString& text, int& position) const
{
    QValidator::State state = QValidator::Invalid;
    int index = currentDisplayFormatIndex();
    validateAndInterpret(text, position, state, index);
    return state;
}

template <typename T>
bool SpinBoxBase<T>::isReadable(const QString& text) const
{
    return refusalOf(text, readText(text)).isEmpty();
}

template <typename T>
QAbstractSpinBox::StepEnabled SpinBoxBase<T>::stepEnabled() const
{
    if (isReadOnly())
        return StepNone;
    if (wrapping())
        return StepUpEnabled | StepDownEnabled;
    StepEnabled steps = StepNone;
    steps.setFlag(StepUpEnabled, m_value < m_maximum);
    steps.setFlag(StepDownEnabled, m_minimum < m_value);
    return steps;
}

template <typename T>
void SpinBoxBase<T>::stepBeyondLimit(bool up)
{
    if (correctionMode() == QAbstractSpinBox::CorrectToNearestValue)
        setValue(up ? m_maximum : m_minimum);
}

template <typename T>
QString SpinBoxBase<T>::refusalOf(const QString& text, const Reading& reading) const
{
    return reading.outcome == Reading::Read ? refusalOf(reading.value)
                                            : m_formats.refusal(text, reading);
}

template <typename T>
QString SpinBoxBase<T>::refusalOf(const T& value) const
{
    if (correctionMode() != QAbstractSpinBox::CorrectToPreviousValue ||
        isInRange(normalized(value)))
        return {};
    return QCoreApplication::translate("SpinBox", "Enter a value from %1 to %2.")
        .arg(textFromValue(m_minimum), textFromValue(m_maximum));
}

template <typename T>
void SpinBoxBase<T>::interpret()
{
    const bool wasChanged = isTextChanged();
    QString text = lineEdit()->text(); // The displayed text has blanks for line breaks.
    Reading reading = readText(text);
    if (!reading.isKnown() || !isInRange(reading.value)) {
        QString corrected = text;
        fixup(corrected);
        if (corrected != text) {
            text = corrected;
            reading = readText(text);
        }
    }
    const QString refusal = wasChanged ? refusalOf(text, reading) : QString();
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
    updateEdit();
    refusalMark().show(refusal);
}

template <typename T>
QStringList SpinBoxBase<T>::sizeSamples() const
{
    QStringList samples;
    for (const T& value : currentDisplayFormat()->widestValues(m_minimum, m_maximum))
        samples << textFromValue(value);
    if constexpr (std::is_same_v<T, double>) {
        for (QString& sample : samples)
            sample.truncate(longestRealSample);
    }
    return samples;
}

template <typename T>
QVariant SpinBoxBase<T>::inputQuantity(Quantity quantity) const
{
    return TypedInputVariant::quantityOf(quantity, m_value, m_minimum, m_maximum);
}

template <typename T>
bool SpinBoxBase<T>::setInputValue(const QVariant& value)
{
    const std::optional<T> typed = TypedInputVariant::fromVariant<T>(value);
    if (!typed || isReadOnly() || !isEnabled())
        return false;
    const QString refusal = refusalOf(*typed);
    refusalMark().clear();
    refusalMark().show(refusal);
    if (!refusal.isEmpty())
        return false;
    setValue(*typed);
    return true;
}

#define INSTANTIATE(T) template class SpinBoxBase<T>;
GUIBASE_FOR_EACH_INPUT_TYPE(INSTANTIATE)
#undef INSTANTIATE

} // namespace SpinBoxes
