// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/binding/valuewidgetbinding.h>

#include <valueframework/value.h>
#include <valueframework/valueselection.h>

#include <QVariant>

#include <functional>
#include <type_traits>
#include <utility>

class QComboBox;
class QLabel;

namespace ValueWidgetBinding::Internal {

/// A binding that knows the kind of its value and the class of its widget.
template <typename ValueKind, typename WidgetClass>
class GUIBASE_EXPORT ValueWidgetBindingBase : public ValueWidgetBinding
{
public:
    /// What the value holds: a number, a truth, a text or a point in time.
    using Held = std::decay_t<decltype(std::declval<const ValueKind&>().GetValue())>;
    /// Tells why an input must not become the value; empty when it may.
    using Guard = std::function<QString(const Held& input)>;

    /// Null once the value is gone.
    ValueKind* value() const { return static_cast<ValueKind*>(boundValue()); }
    /// Only while the widget lives.
    WidgetClass& widget() const { return static_cast<WidgetClass&>(GetWidget()); }

    /// Judges every input before it is taken, also once more when it has waited for the delay; an
    /// empty function, as at first, takes all. A refused input is replaced by the value, and the
    /// reason is shown like that of a text that cannot be read. What the program sets is not
    /// judged. Spin boxes then tell a number when it is complete, not at every key. Not for texts.
    void setGuard(Guard guard) requires(!std::is_same_v<Held, QString>)
    {
        m_guard = std::move(guard);
        tellOnlyCompleteInput();
    }

protected:
    /// The reason of the guard; empty without one.
    QString refusalOf(const Held& input) const { return m_guard ? m_guard(input) : QString(); }

    using ValueWidgetBinding::ValueWidgetBinding;

    const QMetaObject& widgetClass() const override { return WidgetClass::staticMetaObject; }

private:
    Guard m_guard;
};

/// What the widget shows for an item; usually a text.
template <typename WidgetClass>
using ItemToShown = std::function<QVariant(const SelectionItem& item, WidgetClass& widget)>;
/// The item that the user's choice stands for; only its key counts. A key that no item of the
/// selection has, or that of a disabled item, is refused.
template <typename WidgetClass>
using ShownToItem = std::function<SelectionItem(const QVariant& choice, WidgetClass& widget)>;

/// Binds a value to a widget; the binding belongs to the parent or, without one, to the widget.
///
/// The limits of a numeric value become those of the widget; where the value has none, the widget
/// keeps its own. A value that the widget cannot show is marked there and stays as it is. Real
/// numbers are rounded for integer widgets, and back. Widgets of derived classes are bound by
/// naming the classes: `Create<ValueNumeric<int>, QSpinBox>(value, box)`. Null when somebody who is
/// told of the first value deletes the binding. Values and their widgets:
///
/// - `ValueNumeric<int>`: QSpinBox, QDoubleSpinBox, QSlider, QDial, QScrollBar, QProgressBar,
///   QComboBox (its index), ControllerSlider, ControllerDial, QLabel, typed boxes of 8 to 32 bits
/// - `ValueNumeric<qint64>` and `<quint64>`: typed boxes of that type, QLabel; for qint64 also
///   FrequencySpinBox and boxes of 32 bits
/// - `ValueNumeric<double>`: QDoubleSpinBox, QProgressBar, QSlider and QDial (in parts of the
///   range of the value), QLabel, DoubleSpinBox, DoubleComboBox, FrequencySpinBox,
///   ControllerSlider, ControllerDial
/// - `Value<bool>`: QAbstractButton; see also CreateForAction()
/// - `Value<QString>`: QLineEdit, QPlainTextEdit, QLabel
/// - `Value<QDateTime>`: QDateTimeEdit, QDateTimeSpinBox
/// - `Value<GeoPosition>`: CoordinateEdit
template <typename ValueKind, typename WidgetClass>
GUIBASE_EXPORT ValueWidgetBindingBase<ValueKind, WidgetClass>*
Create(ValueKind& value, WidgetClass& widget, QObject* parent = nullptr);

/// Shows the items of a selection. Without functions an item is shown by its name, and the choice
/// is the item at the same index.
template <typename ValueKind, typename WidgetClass>
GUIBASE_EXPORT ValueWidgetBindingBase<ValueKind, WidgetClass>*
Create(ValueKind& value, WidgetClass& widget, const ItemToShown<WidgetClass>& toShown,
       const ShownToItem<WidgetClass>& toItem, QObject* parent = nullptr);

} // namespace ValueWidgetBinding::Internal
