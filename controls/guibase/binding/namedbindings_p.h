// SPDX-License-Identifier: MIT
#pragma once

#include "bindingmacros_p.h"
#include "inputbinding_p.h"

#include <guibase/inputs/comboboxes/comboboxes.h>
#include <guibase/inputs/spinboxes/spinboxes.h>

#include <QDoubleSpinBox>
#include <QSlider>
#include <QSpinBox>

namespace ValueWidgetBinding::Internal {

/// The binding of a QComboBox whose index is the value. Items that come and go do not change the
/// value, although the box then selects another one by itself.
class ComboBoxIndexBinding : public InputBinding<ValueNumeric<int>, QComboBox>
{
protected:
    ComboBoxIndexBinding(ValueNumeric<int>& value, QComboBox& box, QObject* parent);

    /// Hides the base's.
    void widgetChanged(int index);

private:
    void itemsInserted();

    bool m_isEmpty;
};

template <typename V, typename W>
struct InputBindingOf
{
    using Base = InputBinding<V, W>;
};
template <>
struct InputBindingOf<ValueNumeric<int>, QComboBox>
{
    using Base = ComboBoxIndexBinding;
};

GUIBASE_INPUT_BINDING(ValueNumericIntQSpinBoxBinding, ValueNumeric<int>, QSpinBox, int, value,
                      slValueChanged)
GUIBASE_INPUT_BINDING(ValueNumericInt32SpinBoxBinding, ValueNumeric<int>, SpinBoxes::Int32SpinBox,
                      int, value, slValueChanged)
GUIBASE_INPUT_BINDING(ValueNumericIntQSliderBinding, ValueNumeric<int>, QSlider, int, value,
                      slValueChanged)
GUIBASE_INPUT_BINDING(ValueNumericIntQDoubleSpinBoxBinding, ValueNumeric<int>, QDoubleSpinBox,
                      double, value, slValueChanged)
GUIBASE_INPUT_BINDING(ValueNumericIntQComboBoxBinding, ValueNumeric<int>, QComboBox, int, value,
                      slCurrentIndexChanged)
GUIBASE_INPUT_BINDING(ValueNumericFloatQDoubleSpinBoxBinding, ValueNumeric<double>, QDoubleSpinBox,
                      double, value, slValueChanged)
GUIBASE_INPUT_BINDING(ValueNumericFloatDoubleSpinBoxBinding, ValueNumeric<double>,
                      SpinBoxes::DoubleSpinBox, double, value, slValueChanged)
GUIBASE_INPUT_BINDING(ValueNumericFloatComboBoxBinding, ValueNumeric<double>,
                      ComboBoxes::DoubleComboBox, double, value, slValueChanged)
GUIBASE_INPUT_BINDING(ValueNumericFloatQProgressBarBinding, ValueNumeric<double>, QProgressBar, int,
                      value, slValueChanged)
GUIBASE_INPUT_BINDING(ValueBooleanQAbstractButtonBinding, Value<bool>, QAbstractButton, bool,
                      checked, slToggled)
GUIBASE_DISPLAY_BINDING(ValueStringQLabelBinding, Value<QString>, QLabel)

} // namespace ValueWidgetBinding::Internal
