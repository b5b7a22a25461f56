// SPDX-License-Identifier: MIT
#include "spinboxbase.h"

#include <guibase/inputs/typedinputbody.h>
#include <guibase/inputs/typedinputvalue.h>

#include <QCoreApplication>

#include <limits>
#include <type_traits>

namespace {

/// Leaves out the digits of a real number, which can be hundreds, that no field has room for.
void shortenNumber(QString& text, const DisplayFormatText& format)
{
    constexpr qsizetype longestNumber = 18;
    const auto lengthOf = [](const QString& affix) {
        return affix.isEmpty() ? 0 : affix.size() + 1; // with the blank
    };
    const qsizetype start = lengthOf(format.prefix()) + longestNumber;
    const qsizetype end = text.size() - lengthOf(format.suffix());
    if (start < end)
        text.remove(start, end - start);
}

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

template <typename T>
struct SpinBoxBase<T>::Private : TypedInputValue<T>
{
    Private()
        : TypedInputValue<T>(initialValue<T>(), minimumLimit(), maximumLimit())
    {}

    bool isNormalizing = false;
    ValueGuard valueGuard;
};

template <typename T>
SpinBoxBase<T>::SpinBoxBase(QWidget* parent)
    : AbstractSpinBox(parent)
    , m_d(std::make_unique<Private>())
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
T SpinBoxBase<T>::value() const
{
    return m_d->value;
}

template <typename T>
T SpinBoxBase<T>::minimum() const
{
    return m_d->minimum;
}

template <typename T>
T SpinBoxBase<T>::maximum() const
{
    return m_d->maximum;
}

template <typename T>
T SpinBoxBase<T>::normalized(T value) const
{
    const bool isSpecial = value == m_d->minimum && !specialValueText().isEmpty();
    return m_d->isNormalizing && !isSpecial ? normalizeValueToMultipleOfStep(value) : value;
}

template <typename T>
T SpinBoxBase<T>::normalizeValueToMultipleOfStep(T value) const
{
    return value;
}

template <typename T>
void SpinBoxBase<T>::setValue(T value)
{
    constexpr bool maySwitchFormat = true;
    if (!m_d->isValue(value))
        return;
    value = normalized(value);
    if (value == m_d->value)
        return;
    if (!m_d->isInRange(value)) {
        if (correctionMode() == QAbstractSpinBox::CorrectToPreviousValue)
            return;
        value = value < m_d->minimum ? m_d->minimum : m_d->maximum;
    }
    m_d->moveTo(*this, value, maySwitchFormat);
}

template <typename T>
void SpinBoxBase<T>::setRange(T first, T second)
{
    m_d->setRange(*this, first, second);
}

template <typename T>
void SpinBoxBase<T>::adoptRange()
{
    updateGeometry();
    updateButtons();
    if (!specialValueText().isEmpty() && !isTextChanged())
        showValue(); // Another value is special.
}

template <typename T>
bool SpinBoxBase<T>::isNormalizeValueToMultipleOfStep() const
{
    return m_d->isNormalizing;
}

template <typename T>
void SpinBoxBase<T>::setNormalizeValueToMultipleOfStep(bool normalize)
{
    if (normalize == m_d->isNormalizing)
        return;
    m_d->isNormalizing = normalize;
    if (normalize)
        setValue(m_d->value);
}

template <typename T>
void SpinBoxBase<T>::addDisplayFormat(std::unique_ptr<ValueDisplayFormatBase<T>> format)
{
    m_d->formats.add(std::move(format));
    // The current index may have named this format before it was there.
    if (currentDisplayFormatIndex() == countDisplayFormats() - 1)
        updateEdit();
}

template <typename T>
int SpinBoxBase<T>::countDisplayFormats() const
{
    return m_d->formats.count();
}

template <typename T>
ValueDisplayFormatBase<T>* SpinBoxBase<T>::displayFormatAt(int index) const
{
    return m_d->formats.at(index);
}

template <typename T>
ValueDisplayFormatBase<T>* SpinBoxBase<T>::currentDisplayFormat() const
{
    return m_d->formats.current(currentDisplayFormatIndex());
}

template <typename T>
const DisplayFormatList<T>& SpinBoxBase<T>::displayFormats() const
{
    return m_d->formats;
}

template <typename T>
typename DisplayFormatList<T>::Pairs SpinBoxBase<T>::buildDisplayFormatIndexPairs() const
{
    return m_d->formats.trialOrder(currentDisplayFormatIndex());
}

template <typename T>
QString SpinBoxBase<T>::textValue() const
{
    return isSpecialValue() ? specialValueText() : textFromValue(m_d->value);
}

template <typename T>
bool SpinBoxBase<T>::isSpecialValue() const
{
    return m_d->value == m_d->minimum && !specialValueText().isEmpty();
}

template <typename T>
QString SpinBoxBase<T>::textFromValue(T value) const
{
    return m_d->formats.write(value, currentDisplayFormatIndex());
}

template <typename T>
typename SpinBoxBase<T>::Reading SpinBoxBase<T>::readText(const QString& text) const
{
    return m_d->formats.read(text, currentDisplayFormatIndex(), m_d->value);
}

template <typename T>
typename SpinBoxBase<T>::Reading SpinBoxBase<T>::read(const QString& text) const
{
    if (isSpecialValueText(text))
        return {m_d->minimum, currentDisplayFormatIndex(), Reading::Read};
    return readText(text);
}

template <typename T>
int SpinBoxBase<T>::displayFormatIndexByTextSample(const QString& sample, bool* ok) const
{
    const Reading reading = read(sample);
    if (ok != nullptr)
        *ok = reading.isKnown();
    return reading.index;
}

template <typename T>
T SpinBoxBase<T>::valueFromText(const QString& text, bool& ok, int& index) const
{
    return read(text).unpacked(ok, index);
}

template <typename T>
T SpinBoxBase<T>::validateAndInterpret(QString& text, int&, QValidator::State& state,
                                       int& index) const
{
    const Reading reading = read(text);
    state = m_d->stateOf(reading, index);
    return reading.value;
}

template <typename T>
QValidator::State SpinBoxBase<T>::validate(QString& text, int&) const
{
    int index = -1;
    return m_d->stateOf(read(text), index);
}

template <typename T>
QAbstractSpinBox::StepEnabled SpinBoxBase<T>::stepEnabled() const
{
    if (isReadOnly())
        return StepNone;
    if (wrapping())
        return StepUpEnabled | StepDownEnabled;
    StepEnabled steps = StepNone;
    steps.setFlag(StepUpEnabled, m_d->value < m_d->maximum);
    steps.setFlag(StepDownEnabled, m_d->minimum < m_d->value);
    return steps;
}

template <typename T>
void SpinBoxBase<T>::stepBeyondLimit(bool up)
{
    if (correctionMode() == QAbstractSpinBox::CorrectToNearestValue)
        enter(up ? m_d->maximum : m_d->minimum);
}

template <typename T>
QString SpinBoxBase<T>::refusalOf(const QString& text) const
{
    return refusalOfReading(text, read(text));
}

template <typename T>
QString SpinBoxBase<T>::refusalOfReading(const QString& text, const Reading& reading) const
{
    return reading.outcome == Reading::Read ? refusalOfValue(reading.value)
                                            : m_d->formats.refusal(text, reading);
}

template <typename T>
QString SpinBoxBase<T>::refusalOfValue(const T& value) const
{
    if (correctionMode() != QAbstractSpinBox::CorrectToPreviousValue ||
        m_d->isInRange(normalized(value)))
        return refusalOfGuard(value);
    return QCoreApplication::translate("SpinBox", "Type a value from %1 to %2.")
        .arg(textFromValue(m_d->minimum), textFromValue(m_d->maximum));
}

template <typename T>
void SpinBoxBase<T>::setValueGuard(ValueGuard guard)
{
    m_d->valueGuard = std::move(guard);
}

/// Of what the value would become.
template <typename T>
QString SpinBoxBase<T>::refusalOfGuard(const T& value) const
{
    if (!m_d->valueGuard || !m_d->isValue(value))
        return {};
    const T taken = std::clamp(normalized(value), m_d->minimum, m_d->maximum);
    const ValueGuard guard = m_d->valueGuard; // It may destroy the box.
    return taken == m_d->value ? QString() : guard(taken);
}

template <typename T>
void SpinBoxBase<T>::enter(const T& value)
{
    const QPointer<QObject> survivor(this);
    const QString refusal = refusalOfGuard(value);
    if (!survivor)
        return;
    body().mark.clear();
    if (refusal.isEmpty())
        setValue(value);
    else
        body().mark.show(refusal);
}

template <typename T>
void SpinBoxBase<T>::interpret()
{
    const bool isChanged = isTextChanged();
    QString text = lineEdit()->text(); // The displayed text has blanks for line breaks.
    Reading reading = read(text);
    if (!reading.isKnown() || !m_d->isInRange(reading.value)) {
        QString corrected = text;
        fixup(corrected);
        if (corrected != text) {
            text = corrected;
            reading = read(text);
        }
    }
    const QPointer<QObject> survivor(this);
    const QString refusal = isChanged ? refusalOfReading(text, reading) : QString();
    if (survivor)
        body().take(*this, reading, isChanged, refusal);
}

template <typename T>
QStringList SpinBoxBase<T>::sizeSamples() const
{
    QStringList samples;
    for (const T& value : currentDisplayFormat()->widestValues(m_d->minimum, m_d->maximum))
        samples << textFromValue(value);
    if constexpr (std::is_same_v<T, double>) {
        for (QString& sample : samples)
            shortenNumber(sample, *currentDisplayFormat());
    }
    return samples << specialValueText();
}

template <typename T>
QVariant SpinBoxBase<T>::inputQuantity(Quantity quantity) const
{
    return m_d->quantity(quantity);
}

template <typename T>
bool SpinBoxBase<T>::setInputValue(const QVariant& value)
{
    const std::optional<T> typed = TypedInputVariant::fromVariant<T>(value);
    if (!typed || isReadOnly() || !isEnabled())
        return false;
    const QPointer<QObject> survivor(this);
    const QString refusal = refusalOfValue(*typed);
    if (!survivor)
        return false;
    body().mark.clear();
    body().mark.show(refusal);
    if (!refusal.isEmpty())
        return false;
    setValue(*typed);
    return true;
}

#define INSTANTIATE(T) template class SpinBoxBase<T>;
GUIBASE_FOR_EACH_INPUT_TYPE(INSTANTIATE)
#undef INSTANTIATE

} // namespace SpinBoxes
