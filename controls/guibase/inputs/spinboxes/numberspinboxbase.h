// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/spinboxes/spinboxbase.h>

#include <memory>

namespace SpinBoxes {

/// A spin box for numbers: it adds the single step, and the rounding to a multiple of it. Numbers
/// stand at the right at first.
template <typename T>
class GUIBASE_EXPORT NumberSpinBoxBase : public SpinBoxBase<T>
{
public:
    ~NumberSpinBoxBase() override;

    /// 1 at first.
    T singleStep() const;
    /// Does not round the value anew. NaN and infinity are ignored.
    void setSingleStep(T step);

    /// The nearest multiple of the single step, halves away from zero; where the type cannot hold
    /// it, the last one that it can. Steps below 1 leave integers, steps of 0 and below also real
    /// numbers as they are.
    T normalizeValueToMultipleOfStep(T value) const override;

    /// Adds `steps` single steps, after committing what was typed. A result outside the range is
    /// treated as setValue() does; nothing ever wraps. Decimal steps stay decimal: 0.1 + 0.2 is
    /// 0.3.
    void stepBy(int steps) override;

    QVariant inputQuantity(TypedInput::Quantity quantity) const override;

    /// A signal of the typed classes, emitted after the change.
    virtual void singleStepChanged(T step) = 0;

protected:
    explicit NumberSpinBoxBase(QWidget* parent);

    void stepAtCursor(int steps) override;

private:
    GUIBASE_NO_EXPORT void step(qint64 steps, T size);

    struct Private;
    std::unique_ptr<Private> m_d;
};

#define GUIBASE_EXTERN_SPIN_BOX(T) extern template class NumberSpinBoxBase<T>;
GUIBASE_FOR_EACH_INPUT_NUMBER(GUIBASE_EXTERN_SPIN_BOX)
#undef GUIBASE_EXTERN_SPIN_BOX

} // namespace SpinBoxes
