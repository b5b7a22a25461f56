// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class AbstractController;

/// A slider or dial as assistive technologies see it: role, name, text, value, range and step.
class AccessibleController : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    /// Makes the process use this class for all controllers; once is enough.
    static void install();
    static void tellValue(AbstractController& controller);

    explicit AccessibleController(AbstractController& controller);
    ~AccessibleController() override;

    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    AbstractController& controller() const;
};
