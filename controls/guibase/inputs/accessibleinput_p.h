// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class TypedInput;

/// A typed spin box as assistive technologies see it: role, name, text, and value and range over
/// the whole range of the type.
class AccessibleInput : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    /// Makes the process use this class for all typed spin boxes; once is enough.
    static void install();

    AccessibleInput(QWidget* widget, TypedInput& input);
    ~AccessibleInput() override;

    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    TypedInput& m_input;
};
