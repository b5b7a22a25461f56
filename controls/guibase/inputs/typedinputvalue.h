// SPDX-License-Identifier: MIT
#pragma once

#include "typedinput.h"
#include "typedinputvariant.h"

#include <guibase/formats/displayformatlist.h>

#include <QPointer>
#include <QValidator>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

/// The value of a typed input with its range and its formats.
template <typename T>
class TypedInputValue
{
public:
    using Reading = DisplayFormatReading<T>;

    TypedInputValue(const T& initial, const T& lowest, const T& highest)
        : value(initial)
        , minimum(lowest)
        , maximum(highest)
    {}

    T value;
    T minimum;
    T maximum;
    DisplayFormatList<T> formats;

    /// False for NaN and invalid date-times, which inputs ignore.
    static bool isValue(const T& candidate);

    bool isInRange(const T& candidate) const
    {
        return !(candidate < minimum) && !(maximum < candidate);
    }
    /// Acceptable or Invalid; also tells the format's index.
    QValidator::State stateOf(const Reading& reading, int& formatIndex) const
    {
        bool ok = false;
        const T read = reading.unpacked(ok, formatIndex);
        return ok && isInRange(read) ? QValidator::Acceptable : QValidator::Invalid;
    }
    /// Invalid for the single step.
    QVariant quantity(TypedInput::Quantity quantity) const;

    /// Makes this the value, shows it and emits valueChanged(), in which the input may be deleted.
    /// `Input` has body() and the signal.
    template <typename Input>
    void moveTo(Input& input, T other, bool maySwitchFormat = false);

    /// Takes the bounds in any order; does nothing when one is no value. A value outside the range
    /// moves to the nearer bound, below the minimum to `special` if there is one. The input tells
    /// of all changes, and may die of it.
    ///
    /// `Input` has body(), adoptRange() and the signals.
    template <typename Input>
    void setRange(Input& input, T first, T second, const std::optional<T>& special = {});

private:
    static T finiteBound(T bound);
};

template <typename T>
bool TypedInputValue<T>::isValue(const T& candidate)
{
    if constexpr (std::is_same_v<T, QDateTime>)
        return candidate.isValid();
    else if constexpr (std::is_same_v<T, double>)
        return !std::isnan(candidate);
    else
        return true;
}

/// Infinite bounds would let infinity in.
template <typename T>
T TypedInputValue<T>::finiteBound(T bound)
{
    if constexpr (std::is_same_v<T, double>)
        return std::clamp(bound, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max());
    else
        return bound;
}

template <typename T>
QVariant TypedInputValue<T>::quantity(TypedInput::Quantity quantity) const
{
    switch (quantity) {
    case TypedInput::Quantity::Value:
        return TypedInputVariant::toVariant(value);
    case TypedInput::Quantity::Minimum:
        return TypedInputVariant::toVariant(minimum);
    case TypedInput::Quantity::Maximum:
        return TypedInputVariant::toVariant(maximum);
    case TypedInput::Quantity::SingleStep:
        break;
    }
    return {};
}

template <typename T>
template <typename Input>
void TypedInputValue<T>::moveTo(Input& input, T other, bool maySwitchFormat)
{
    const QPointer<QObject> guard(&input);
    value = other;
    input.body().mark.clear();
    if (maySwitchFormat)
        input.body().formats.switchIfAutomatic();
    if (!guard)
        return;
    input.body().showNewValue();
    input.valueChanged(other);
}

template <typename T>
template <typename Input>
void TypedInputValue<T>::setRange(Input& input, T first, T second, const std::optional<T>& special)
{
    if (!isValue(first) || !isValue(second))
        return;
    const auto [low, high] = std::minmax({finiteBound(first), finiteBound(second)});
    const bool isMinimumChanged = low != minimum;
    const bool isMaximumChanged = high != maximum;
    if (!isMinimumChanged && !isMaximumChanged)
        return;
    minimum = low;
    maximum = high;
    input.adoptRange();
    const QPointer<QObject> guard(&input);
    if (isMinimumChanged) {
        if (value < minimum)
            moveTo(input, special.value_or(minimum));
        if (guard)
            input.minimumChanged(minimum);
    }
    if (guard && isMaximumChanged) {
        if (maximum < value)
            moveTo(input, maximum);
        if (guard)
            input.maximumChanged(maximum);
    }
    if (guard)
        input.rangeChanged(minimum, maximum);
}
