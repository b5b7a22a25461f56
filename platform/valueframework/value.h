// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valuebase.h>

#include <jtbase/geoposition.h>

#include <QDateTime>

#include <limits>
#include <utility>

/// A value of any kind that a QVariant can hold and convert; bool, QDateTime, QString and
/// GeoPosition are provided.
template <typename T>
class VALUEFRAMEWORK_EXPORT Value : public ValueBase
{
public:
    /// The name becomes part of the path in the tree.
    explicit Value(const QString& name, T value = {})
        : ValueBase(name)
        , m_value(std::move(value))
    {}
    ~Value() override { leave(); }

    /// As it was last set.
    const T& GetValue() const { return m_value; }

    /// Sets and tells the observers, unless the value is the same.
    void SetValue(const T& value)
    {
        if (m_value == value)
            return;
        aboutToChange();
        m_value = value;
        tell(ChangeCode::CurrentValue);
    }

    QVariant GetVariant() const override { return QVariant::fromValue(m_value); }
    bool SetVariant(const QVariant& value) override
    {
        QVariant converted = value;
        if (!convertVariant(converted, QMetaType::fromType<T>()))
            return false;
        SetValue(converted.template value<T>());
        return true;
    }

private:
    T m_value;
};

extern template class Value<bool>;
extern template class Value<QDateTime>;
extern template class Value<QString>;
extern template class Value<GeoPosition>;

/// The side of a numeric value that does not depend on its type.
class VALUEFRAMEWORK_EXPORT IValueNumeric
{
public:
    virtual ~IValueNumeric();

    /// The observable that tells of changes of this value.
    virtual Observable* GetObservable() = 0;
    /// Not exact for whole numbers beyond 2^53, here and below.
    virtual double GetAsDouble() const = 0;
    /// Rounds for integer values; clamps into the range; NaN is ignored.
    virtual void SetAsDouble(double value) = 0;
    virtual double GetMinimumAsDouble() const = 0;
    virtual double GetMaximumAsDouble() const = 0;
};

/// A number with a range; int, qint64, quint64 and double are provided.
template <typename T>
class VALUEFRAMEWORK_EXPORT ValueNumeric : public ValueBase, public IValueNumeric
{
public:
    /// Limits in the wrong order are swapped, the value is clamped; what is NaN counts as not
    /// given.
    explicit ValueNumeric(const QString& name, T value = {},
                          T minimum = std::numeric_limits<T>::lowest(),
                          T maximum = std::numeric_limits<T>::max());
    ~ValueNumeric() override;

    /// The value, which is always within the range.
    T GetValue() const;
    T GetMinimum() const;
    T GetMaximum() const;
    /// Clamps into the range and tells the observers, unless the value is the same. NaN is ignored.
    void SetValue(T value);
    /// Limits in the wrong order are swapped; NaN is ignored, with both limits. Tells
    /// ChangeCode::Range, then ChangeCode::CurrentValue when the value had to be clamped.
    void SetRange(T minimum, T maximum);

    Observable* GetObservable() override;
    double GetAsDouble() const override;
    void SetAsDouble(double value) override;
    double GetMinimumAsDouble() const override;
    double GetMaximumAsDouble() const override;

    QVariant GetVariant() const override;
    /// Takes every finite number and its text, as SetAsDouble() does, but whole numbers exactly.
    bool SetVariant(const QVariant& value) override;

private:
    T m_value;
    T m_minimum;
    T m_maximum;
};

extern template class ValueNumeric<int>;
extern template class ValueNumeric<qint64>;
extern template class ValueNumeric<quint64>;
extern template class ValueNumeric<double>;
