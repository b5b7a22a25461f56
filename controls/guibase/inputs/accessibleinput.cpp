// SPDX-License-Identifier: MIT
#include "accessibleinput_p.h"

#include "abstractspinbox.h"

#include <QLineEdit>
#include <QSignalBlocker>

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* box = qobject_cast<SpinBoxes::AbstractSpinBox*>(object);
    return box != nullptr ? new AccessibleInput(box, *box) : nullptr; // The toolkit owns it.
}

/// The interface of the line edit. The toolkit makes one without text operations for the line edits
/// of spin boxes, which it tells by their name; once made, interfaces are kept.
QAccessibleInterface* lineEditInterface(QLineEdit& edit)
{
    QAccessibleInterface* known = QAccessible::queryAccessibleInterface(&edit);
    if (known != nullptr && known->editableTextInterface() != nullptr)
        return known;
    if (known != nullptr)
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
    const QSignalBlocker blocker(&edit);
    const QString name = edit.objectName();
    edit.setObjectName(QString());
    QAccessibleInterface* made = QAccessible::queryAccessibleInterface(&edit);
    edit.setObjectName(name);
    return made;
}

} // namespace

void AccessibleInput::install()
{
    static const bool isInstalled = (QAccessible::installFactory(&makeInterface), true);
    Q_UNUSED(isInstalled)
}

AccessibleInput::AccessibleInput(QWidget* widget, TypedInput& input)
    : QAccessibleWidget(widget, QAccessible::SpinBox)
    , m_input(input)
{}

AccessibleInput::~AccessibleInput() = default;

QString AccessibleInput::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return m_input.inputLineEdit()->text();
    const QString refusal = m_input.inputRefusal();
    if (kind == QAccessible::Description && !refusal.isEmpty())
        return refusal;
    return QAccessibleWidget::text(kind);
}

void* AccessibleInput::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::TextInterface || type == QAccessible::EditableTextInterface) {
        QAccessibleInterface* edit = lineEditInterface(*m_input.inputLineEdit());
        return edit != nullptr ? edit->interface_cast(type) : nullptr;
    }
    return QAccessibleWidget::interface_cast(type);
}

QVariant AccessibleInput::currentValue() const
{
    return m_input.inputQuantity(TypedInput::Quantity::Value);
}

void AccessibleInput::setCurrentValue(const QVariant& value)
{
    m_input.setInputValue(value);
}

QVariant AccessibleInput::maximumValue() const
{
    return m_input.inputQuantity(TypedInput::Quantity::Maximum);
}

QVariant AccessibleInput::minimumValue() const
{
    return m_input.inputQuantity(TypedInput::Quantity::Minimum);
}

QVariant AccessibleInput::minimumStepSize() const
{
    return m_input.inputQuantity(TypedInput::Quantity::SingleStep);
}
