// SPDX-License-Identifier: MIT
#include "accessibleinput.h"

#include "typedinput.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

namespace {

/// Leaves the list of a combo box alone, which the box makes when it opens for the first time.
bool isOpen(const QComboBox& box)
{
    const auto* list = box.findChild<QAbstractItemView*>();
    return list != nullptr && list->isVisible();
}

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* input = dynamic_cast<TypedInput*>(object);
    auto* widget = qobject_cast<QWidget*>(object);
    if (input == nullptr || widget == nullptr || input->inputLineEdit() == nullptr)
        return nullptr;
    return new AccessibleInput(widget, *input); // The toolkit owns it.
}

/// The interface of the line edit. The toolkit makes one without text operations for the line edits
/// of spin boxes, which it tells by their name; once made, interfaces are kept.
QAccessibleInterface* interfaceOf(QLineEdit& edit)
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

void AccessibleInput::tellValue(QObject* object, const TypedInput& input)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(object, input.inputQuantity(TypedInput::Quantity::Value));
    QAccessible::updateAccessibility(&event);
}

AccessibleInput::AccessibleInput(QWidget* widget, TypedInput& input)
    : QAccessibleWidget(widget, qobject_cast<QComboBox*>(widget) != nullptr ? QAccessible::ComboBox
                                                                            : QAccessible::SpinBox)
    , m_input(input)
{}

AccessibleInput::~AccessibleInput() = default;

QString AccessibleInput::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return m_input.inputLineEdit() != nullptr ? m_input.inputLineEdit()->text() : QString();
    const QString refusal = m_input.inputRefusal();
    if (kind == QAccessible::Description && !refusal.isEmpty())
        return refusal;
    return QAccessibleWidget::text(kind);
}

void AccessibleInput::setText(QAccessible::Text kind, const QString& text)
{
    QLineEdit* edit = m_input.inputLineEdit();
    if (kind != QAccessible::Value || edit == nullptr) {
        QAccessibleWidget::setText(kind, text);
    } else if (widget()->isEnabled() && !edit->isReadOnly()) {
        edit->setText(text);
        Q_EMIT edit->editingFinished();
    }
}

QAccessible::State AccessibleInput::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const QLineEdit* edit = m_input.inputLineEdit();
    state.readOnly = edit == nullptr || edit->isReadOnly();
    state.editable = !state.readOnly;
    if (const auto* box = qobject_cast<QComboBox*>(object())) {
        state.expandable = true;
        state.hasPopup = true;
        state.expanded = isOpen(*box);
        state.collapsed = !state.expanded;
    }
    return state;
}

QStringList AccessibleInput::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (qobject_cast<QComboBox*>(object()) != nullptr && widget()->isEnabled())
        names.prepend(showMenuAction());
    return names;
}

void AccessibleInput::doAction(const QString& name)
{
    auto* box = qobject_cast<QComboBox*>(object());
    if (box == nullptr || name != showMenuAction())
        QAccessibleWidget::doAction(name);
    else if (isOpen(*box))
        box->hidePopup();
    else if (box->isEnabled())
        box->showPopup();
}

void* AccessibleInput::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::TextInterface || type == QAccessible::EditableTextInterface) {
        QAccessibleInterface* edit = lineEditInterface();
        if (edit != nullptr && type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return edit != nullptr ? edit->interface_cast(type) : nullptr;
    }
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* AccessibleInput::lineEditInterface() const
{
    QLineEdit* edit = m_input.inputLineEdit(); // None in a combo box that is not editable.
    return edit != nullptr ? interfaceOf(*edit) : nullptr;
}

void AccessibleInput::deleteText(int start, int end)
{
    if (QAccessibleInterface* edit = lineEditInterface())
        edit->editableTextInterface()->deleteText(start, end);
}

void AccessibleInput::insertText(int offset, const QString& text)
{
    if (QAccessibleInterface* edit = lineEditInterface())
        edit->editableTextInterface()->insertText(offset, text);
}

void AccessibleInput::replaceText(int start, int end, const QString& text)
{
    QAccessibleInterface* edit = lineEditInterface();
    if (edit == nullptr)
        return;
    edit->editableTextInterface()->replaceText(start, end, text);
    if (!widget()->hasFocus())
        Q_EMIT m_input.inputLineEdit()->editingFinished();
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
