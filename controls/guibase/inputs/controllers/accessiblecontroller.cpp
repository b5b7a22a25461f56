// SPDX-License-Identifier: MIT
#include "accessiblecontroller_p.h"

#include "abstractcontroller.h"
#include "controllerdial.h"

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* controller = qobject_cast<AbstractController*>(object);
    return controller != nullptr ? new AccessibleController(*controller) // The toolkit owns it.
                                 : nullptr;
}

} // namespace

void AccessibleController::install()
{
    static const bool isInstalled = (QAccessible::installFactory(&makeInterface), true);
    Q_UNUSED(isInstalled)
}

void AccessibleController::tellValue(AbstractController& controller)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(&controller, controller.value());
    QAccessible::updateAccessibility(&event);
}

AccessibleController::AccessibleController(AbstractController& controller)
    : QAccessibleWidget(&controller, qobject_cast<ControllerDial*>(&controller) != nullptr
                                         ? QAccessible::Dial
                                         : QAccessible::Slider)
{}

AccessibleController::~AccessibleController() = default;

AbstractController& AccessibleController::controller() const
{
    return static_cast<AbstractController&>(*widget());
}

QString AccessibleController::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? controller().textValue() : QAccessibleWidget::text(kind);
}

void* AccessibleController::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QVariant AccessibleController::currentValue() const
{
    return controller().value();
}

void AccessibleController::setCurrentValue(const QVariant& value)
{
    bool isNumber = false;
    const double wanted = value.toDouble(&isNumber);
    if (isNumber && controller().isEnabled())
        controller().setValue(wanted);
}

QVariant AccessibleController::maximumValue() const
{
    return controller().maximum();
}

QVariant AccessibleController::minimumValue() const
{
    return controller().minimum();
}

QVariant AccessibleController::minimumStepSize() const
{
    return controller().fineStep();
}
