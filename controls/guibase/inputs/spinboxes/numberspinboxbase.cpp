// SPDX-License-Identifier: MIT
#include "numberspinboxbase.h"

#include "digitatcursor_p.h"

#include <guibase/formats/integralnumberdisplayformat.h>
#include <guibase/inputs/steparithmetic.h>
#include <guibase/inputs/typedinputvariant.h>

#include <QLineEdit>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace {

template <typename T>
int baseOf(const ValueDisplayFormatBase<T>* format)
{
    if constexpr (std::is_integral_v<T>) {
        if (const auto* integral = dynamic_cast<const IntegralNumberDisplayFormat<T>*>(format))
            return integral->base();
    }
    return 10;
}

} // namespace

namespace SpinBoxes {

template <typename T>
struct NumberSpinBoxBase<T>::Private
{
    T singleStep = T(1);
};

template <typename T>
NumberSpinBoxBase<T>::NumberSpinBoxBase(QWidget* parent)
    : SpinBoxBase<T>(parent)
    , m_d(std::make_unique<Private>())
{
    this->setAlignment(Qt::AlignRight); // As combo boxes for numbers are.
}

template <typename T>
NumberSpinBoxBase<T>::~NumberSpinBoxBase() = default;

template <typename T>
T NumberSpinBoxBase<T>::singleStep() const
{
    return m_d->singleStep;
}

template <typename T>
void NumberSpinBoxBase<T>::setSingleStep(T step)
{
    if constexpr (std::is_same_v<T, double>) {
        if (!std::isfinite(step))
            return;
    }
    if (step == m_d->singleStep)
        return;
    m_d->singleStep = step;
    singleStepChanged(step);
}

template <typename T>
T NumberSpinBoxBase<T>::normalizeValueToMultipleOfStep(T value) const
{
    return StepArithmetic::nearestMultiple(value, m_d->singleStep);
}

template <typename T>
void NumberSpinBoxBase<T>::stepBy(int steps)
{
    if (this->interpretIfTextChanged())
        step(steps, m_d->singleStep);
}

template <typename T>
void NumberSpinBoxBase<T>::step(qint64 steps, T size)
{
    if (const std::optional<T> result = StepArithmetic::stepped(this->value(), steps, size))
        this->enter(*result);
    else
        this->stepBeyondLimit((steps < 0) == (size < 0));
}

template <typename T>
void NumberSpinBoxBase<T>::stepAtCursor(int steps)
{
    if (!this->interpretIfTextChanged())
        return;
    if (this->isSpecialValue())
        return step(steps, m_d->singleStep); // Its text has no digits of the value.
    const QPointer<QLineEdit> edit = this->lineEdit();
    const QString text = edit->text();
    const int index = this->currentDisplayFormatIndex();
    const auto* format = this->currentDisplayFormat();
    const auto range = format->bareRange(text);
    const QLocale& locale = format->locale();
    const bool isGrouped = !locale.numberOptions().testFlag(QLocale::OmitGroupSeparator);
    const std::optional<DigitAtCursor> digit = DigitAtCursor::find(
        text.mid(range.start, range.end - range.start), edit->cursorPosition() - range.start,
        baseOf(format), isGrouped ? locale.groupSeparator() : QString());
    if (!digit)
        return;
    const std::optional<T> one = this->displayFormats().readWith(index, digit->one);
    const std::optional<T> zero = this->displayFormats().readWith(index, digit->zero);
    if (!one || !zero)
        return;
    const std::optional<T> size = StepArithmetic::stepped(*one, -1, *zero);
    if (!size)
        return;
    // The place value has the sign of the number: up is up for negative numbers too.
    const int fromEnd = static_cast<int>(text.size()) - edit->cursorPosition();
    step(*size < T(0) ? -qint64(steps) : qint64(steps), *size);
    if (edit)
        edit->setCursorPosition(std::max(0, static_cast<int>(edit->text().size()) - fromEnd));
}

template <typename T>
QVariant NumberSpinBoxBase<T>::inputQuantity(TypedInput::Quantity quantity) const
{
    return quantity == TypedInput::Quantity::SingleStep
               ? TypedInputVariant::toVariant(m_d->singleStep)
               : SpinBoxBase<T>::inputQuantity(quantity);
}

#define INSTANTIATE(T) template class NumberSpinBoxBase<T>;
GUIBASE_FOR_EACH_INPUT_NUMBER(INSTANTIATE)
#undef INSTANTIATE

} // namespace SpinBoxes
