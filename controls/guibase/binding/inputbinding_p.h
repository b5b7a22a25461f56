// SPDX-License-Identifier: MIT
#pragma once

#include "conversion_p.h"
#include "create.h"
#include "widgetaccess_p.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace ValueWidgetBinding::Internal {

/// The binding of a value that is one number, text, truth or point in time. Derived classes connect
/// the widget to widgetChanged(); who makes them calls Init().
template <typename V, typename W>
class InputBinding : public ValueWidgetBindingBase<V, W>
{
public:
    using Access = WidgetAccess<W>;
    using Shown = ShownBy<W>;
    using Held = typename ValueWidgetBindingBase<V, W>::Held;

    using ValueWidgetBindingBase<V, W>::Init;

    /// What the widget holds.
    Shown shown() const { return this->isWidgetAlive() ? Access::get(this->widget()) : Shown(); }
    /// As if the user had entered it.
    void setShown(const Shown& shown)
    {
        if (this->isWidgetAlive())
            Access::set(this->widget(), shown);
    }

protected:
    InputBinding(V& value, W& widget, QObject* parent)
        : ValueWidgetBindingBase<V, W>(value, widget, parent)
    {
        if constexpr (hasLimits<W>)
            m_ownLimits.emplace(widget.minimum(), widget.maximum());
    }

    void widgetChanged(const Shown& told)
    {
        if (this->isUpdatingWidget())
            ++m_timesTold;
        if (this->isUpdatingWidget() || this->value() == nullptr || !this->isWidgetAlive())
            return;
        const Shown entered = Access::get(this->widget());
        if (entered != told)
            return; // Who heard of it before has changed it already.
        // Not an input: the widget has rounded or clamped what it was shown, or tells it again.
        const Held value = this->value()->GetValue();
        if (!this->hasPendingUpdate() && isShowable(value) &&
            isShownAs(targetOf(value).quantity, entered)) {
            showValue();
            return;
        }
        const Held input = fromShown(entered);
        if (const QString refusal = this->refusalOf(input); !refusal.isEmpty())
            refuse(refusal);
        else
            this->scheduleUpdate([this, input] { take(input); });
    }

    void UpdateWidget(TChangeCode code) override
    {
        if (code != ChangeCode::Range && code != ChangeCode::CurrentValue)
            return;
        if (code == ChangeCode::Range && !showLimits())
            return;
        showValue();
    }

    void afterWrite() override
    {
        if (const QString refusal = std::exchange(m_refusal, QString()); !refusal.isEmpty())
            refuse(refusal);
        else
            showValue();
    }

    /// What hears of it may give the widget something else meanwhile, or change the value: the
    /// value wins.
    void showValue()
    {
        for (int i = 0; i < mostAttempts && this->value() != nullptr; ++i) {
            const Held value = this->value()->GetValue();
            const Target target = targetOf(value);
            const Shown now = Access::get(this->widget());
            if (isShownAs(target.quantity, now)) {
                tellWhetherShown(value, target, now);
                return;
            }
            const unsigned toldBefore = m_timesTold;
            const WidgetUpdateTransaction transaction = this->openWidgetUpdateTransaction();
            Access::set(this->widget(), target.quantity);
            if (!transaction.isBindingAlive() || !this->isWidgetAlive())
                return;
            if (m_timesTold - toldBefore <= 1) { // Nobody else has set the widget.
                m_shown.emplace(target.quantity, Access::get(this->widget()));
                tellWhetherShown(value, target, m_shown->second);
                return;
            }
        }
    }

private:
    void take(const Held& input)
    {
        m_refusal = this->refusalOf(input); // What the guard looks at may have changed.
        if (V* value = this->value(); value != nullptr && m_refusal.isEmpty())
            value->SetValue(input);
    }

    void refuse(const QString& reason)
    {
        const QPointer<QObject> guard(this);
        showValue();
        if (guard && this->isWidgetAlive())
            this->showRefusal(reason);
    }

    struct Target
    {
        Shown quantity;   ///< The nearest that the widget can hold.
        bool fits = true; ///< That is the value, but for rounding.
    };

    static constexpr int mostAttempts = 5;
    static constexpr bool isNumber = std::is_arithmetic_v<Held> && !std::is_same_v<Held, bool>;
    static constexpr bool isPartOfRange = isScale<W> && std::is_floating_point_v<Held>;

    void tellWhetherShown(const Held& value, const Target& target, const Shown& now)
    {
        bool fits = target.fits;
        if constexpr (!std::is_arithmetic_v<Shown>)
            fits = fits && now == target.quantity;
        if (!fits)
            this->setUnshownValue(Conversion::text(value));
        else if (this->isMarked())
            this->setUnshownValue(QString());
    }

    /// Whether the widget has been given the quantity, which it may have rounded.
    bool isShownAs(const Shown& quantity, const Shown& now) const
    {
        return now == quantity || (m_shown && m_shown->first == quantity && m_shown->second == now);
    }

    /// No widget can show a point in time, or a position, that there is not.
    static bool isShowable(const Held& value)
    {
        if constexpr (requires { value.isValid(); })
            return value.isValid();
        else
            return true;
    }

    static bool isBound(const Held& minimum, const Held& maximum)
    {
        return minimum > std::numeric_limits<Held>::lowest() &&
               maximum < std::numeric_limits<Held>::max() && minimum < maximum;
    }

    /// False when the binding or the widget did not survive it.
    bool showLimits()
    {
        if constexpr (hasLimits<W> && isNumber && !isPartOfRange) {
            W& widget = this->widget();
            const V& value = *this->value();
            const Shown minimum = value.GetMinimum() == std::numeric_limits<Held>::lowest()
                                      ? m_ownLimits->first
                                      : Conversion::nearest<Shown>(value.GetMinimum());
            const Shown maximum = value.GetMaximum() == std::numeric_limits<Held>::max()
                                      ? m_ownLimits->second
                                      : Conversion::nearest<Shown>(value.GetMaximum());
            if (widget.minimum() != minimum || widget.maximum() != maximum) {
                const WidgetUpdateTransaction transaction = this->openWidgetUpdateTransaction();
                widget.setRange(std::min(minimum, maximum), std::max(minimum, maximum));
                return transaction.isBindingAlive() && this->isWidgetAlive() &&
                       this->value() != nullptr;
            }
        }
        return true;
    }

    Target targetOf(const Held& value) const
    {
        if constexpr (std::is_same_v<W, QLabel>)
            return {Conversion::text(value)};
        else if constexpr (std::is_same_v<W, QComboBox>)
            return targetIndex(value);
        else if constexpr (requires { value.isValid(); })
            return targetIfValid(value);
        else if constexpr (isNumber)
            return targetNumber(value);
        else
            return {value};
    }

    Target targetIndex(int value) const
    {
        const bool isThere = value >= 0 && value < this->widget().count();
        return {isThere ? value : -1, isThere || value == -1};
    }

    Target targetIfValid(const Held& value) const
    {
        if (!value.isValid())
            return {Access::get(this->widget()), false};
        if constexpr (hasLimits<W>)
            return {std::clamp(value, this->widget().minimum(), this->widget().maximum()),
                    this->widget().minimum() <= value && value <= this->widget().maximum()};
        else
            return {value};
    }

    Target targetNumber(const Held& value) const
    {
        const W& widget = this->widget();
        if constexpr (isPartOfRange) {
            const V& bounds = *this->value();
            if (isBound(bounds.GetMinimum(), bounds.GetMaximum())) {
                const double part = (value / 2 - bounds.GetMinimum() / 2) /
                                    (bounds.GetMaximum() / 2 - bounds.GetMinimum() / 2);
                return {Conversion::nearest<Shown>(
                    std::lerp(double(widget.minimum()), double(widget.maximum()), part))};
            }
        }
        const Shown wanted = Conversion::nearest<Shown>(value);
        if (isSpecialBelowRange(wanted))
            return {wanted, Conversion::fits<Shown>(value)};
        const Shown quantity = std::clamp(wanted, widget.minimum(), widget.maximum());
        bool fits = quantity == wanted;
        if constexpr (requires { widget.decimals(); })
            fits = fits || std::abs(quantity - wanted) < std::pow(10.0, -widget.decimals());
        return {quantity, fits && Conversion::fits<Shown>(value)};
    }

    /// What the widget takes and shows although it is below its minimum.
    bool isSpecialBelowRange(const Shown& wanted) const
    {
        if constexpr (requires(const W& box) { box.specialValue(); })
            return wanted == this->widget().specialValue() && wanted < this->widget().minimum() &&
                   !this->widget().specialValueText().isEmpty();
        else
            return false;
    }

    Held fromShown(const Shown& shown) const
    {
        if constexpr (isPartOfRange) {
            const W& widget = this->widget();
            const V& bounds = *this->value();
            if (isBound(bounds.GetMinimum(), bounds.GetMaximum()) &&
                widget.minimum() < widget.maximum()) {
                const double part = (double(shown) - widget.minimum()) /
                                    (double(widget.maximum()) - widget.minimum());
                return std::lerp(bounds.GetMinimum(), bounds.GetMaximum(), part);
            }
        }
        return Conversion::nearest<Held>(shown);
    }

    std::optional<std::pair<Shown, Shown>> m_ownLimits; ///< Of the widget, before it was bound.
    unsigned m_timesTold = 0;                           ///< By the widget, while it was updated.
    QString m_refusal; ///< Of the input that was to be written just now.
    std::optional<std::pair<Shown, Shown>> m_shown; ///< What the widget was given, and became.
};

/// A binding that needs no name.
template <typename V, typename W>
class PlainBinding : public InputBinding<V, W>
{
public:
    PlainBinding(V& value, W& widget, QObject* parent)
        : InputBinding<V, W>(value, widget, parent)
    {
        if constexpr (requires { WidgetAccess<W>::changed; })
            this->connect(&widget, WidgetAccess<W>::changed, this,
                          [this] { this->widgetChanged(this->shown()); });
    }
};

/// The class of the binding between a kind of value and a class of widget.
template <typename V, typename W>
struct BindingFor
{
    using Binding = PlainBinding<V, W>;
};

} // namespace ValueWidgetBinding::Internal
