// SPDX-License-Identifier: MIT
#include <valueframework/value.h>

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace {

template <typename T>
bool isNotANumber(T value)
{
    if constexpr (std::is_floating_point_v<T>)
        return std::isnan(value);
    else
        return false;
}

/// Whether the variant becomes the same whole number or none; other types wrap or are rounded.
template <typename T>
bool isExact(const QVariant& value)
{
    return value.metaType() == QMetaType::fromType<T>() || value.typeId() == QMetaType::QString;
}

} // namespace

IValueNumeric::~IValueNumeric() = default;

template <typename T>
ValueNumeric<T>::ValueNumeric(const QString& name, T value, T minimum, T maximum)
    : ValueBase(name)
    , m_value(isNotANumber(value) ? T{} : value)
    , m_minimum(isNotANumber(minimum) ? std::numeric_limits<T>::lowest() : minimum)
    , m_maximum(isNotANumber(maximum) ? std::numeric_limits<T>::max() : maximum)
{
    if (m_maximum < m_minimum)
        std::swap(m_minimum, m_maximum);
    m_value = std::clamp(m_value, m_minimum, m_maximum);
}

template <typename T>
ValueNumeric<T>::~ValueNumeric()
{
    leave();
}

template <typename T>
T ValueNumeric<T>::GetValue() const
{
    return m_value;
}

template <typename T>
T ValueNumeric<T>::GetMinimum() const
{
    return m_minimum;
}

template <typename T>
T ValueNumeric<T>::GetMaximum() const
{
    return m_maximum;
}

template <typename T>
void ValueNumeric<T>::SetValue(T value)
{
    if (isNotANumber(value))
        return;
    const T clamped = std::clamp(value, m_minimum, m_maximum);
    if (clamped == m_value)
        return;
    aboutToChange();
    m_value = clamped;
    tell(ChangeCode::CurrentValue);
}

template <typename T>
void ValueNumeric<T>::SetRange(T minimum, T maximum)
{
    if (isNotANumber(minimum) || isNotANumber(maximum))
        return;
    if (maximum < minimum)
        std::swap(minimum, maximum);
    if (minimum == m_minimum && maximum == m_maximum)
        return;
    const T clamped = std::clamp(m_value, minimum, maximum);
    const bool valueChanges = clamped != m_value;
    if (valueChanges)
        aboutToChange();
    // Observers of the range must not find a value outside it.
    m_minimum = minimum;
    m_maximum = maximum;
    m_value = clamped;
    if (tell(ChangeCode::Range) && valueChanges)
        tell(ChangeCode::CurrentValue);
}

template <typename T>
Observable* ValueNumeric<T>::GetObservable()
{
    return this;
}

template <typename T>
double ValueNumeric<T>::GetAsDouble() const
{
    return static_cast<double>(m_value);
}

template <typename T>
void ValueNumeric<T>::SetAsDouble(double value)
{
    if (std::isnan(value))
        return;
    // The bounds of 64-bit numbers as double may lie outside the type.
    if (value <= GetMinimumAsDouble())
        SetValue(m_minimum);
    else if (value >= GetMaximumAsDouble())
        SetValue(m_maximum);
    else if constexpr (std::is_integral_v<T>)
        SetValue(static_cast<T>(std::round(value)));
    else
        SetValue(value);
}

template <typename T>
double ValueNumeric<T>::GetMinimumAsDouble() const
{
    return static_cast<double>(m_minimum);
}

template <typename T>
double ValueNumeric<T>::GetMaximumAsDouble() const
{
    return static_cast<double>(m_maximum);
}

template <typename T>
QVariant ValueNumeric<T>::GetVariant() const
{
    return QVariant::fromValue(m_value);
}

template <typename T>
bool ValueNumeric<T>::SetVariant(const QVariant& value)
{
    QVariant converted = value;
    if constexpr (sizeof(T) > sizeof(int) && std::is_integral_v<T>) {
        if (isExact<T>(value) && convertVariant(converted, QMetaType::fromType<T>())) {
            SetValue(converted.value<T>());
            return true;
        }
        converted = value;
    }
    if (!convertVariant(converted, QMetaType::fromType<double>()))
        return false;
    const double number = converted.toDouble();
    if (!std::isfinite(number))
        return false;
    SetAsDouble(number);
    return true;
}

template class Value<bool>;
template class Value<QDateTime>;
template class Value<QString>;
template class Value<GeoPosition>;
template class ValueNumeric<int>;
template class ValueNumeric<qint64>;
template class ValueNumeric<quint64>;
template class ValueNumeric<double>;
