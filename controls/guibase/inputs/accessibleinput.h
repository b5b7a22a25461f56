// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class TypedInput;

/// A typed spin box or combo box as assistive technologies see it: role, name, text, and value and
/// range over the whole range of the type. Combo boxes can be opened.
class AccessibleInput : public QAccessibleWidget,
                        public QAccessibleValueInterface,
                        public QAccessibleEditableTextInterface
{
public:
    /// Makes the process use this class for all typed inputs; once is enough.
    static void install();

    /// Tells that the value has changed.
    static void tellValue(QObject* object, const TypedInput& input);

    AccessibleInput(QWidget* widget, TypedInput& input);
    ~AccessibleInput() override;

    QString text(QAccessible::Text kind) const override;
    /// A value is committed at once.
    void setText(QAccessible::Text kind, const QString& text) override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString& text) override;
    /// Commits the text at once when the user is not typing in the field.
    void replaceText(int start, int end, const QString& text) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    QAccessibleInterface* lineEditInterface() const;

    TypedInput& m_input;
};
