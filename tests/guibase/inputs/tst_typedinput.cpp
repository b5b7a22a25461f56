// SPDX-License-Identifier: MIT
#include "support/checked.h"
#include "support/guardedtest.h"
#include "support/typing.h"

#include <guibase/inputs/comboboxes/comboboxes.h>
#include <guibase/inputs/spinboxes/spinboxes.h>
#include <guibase/services/guibase.h>

#include <QAccessible>

#include <limits>

class tst_TypedInput : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void spinBoxesTellAssistiveTechnologies()
    {
        SpinBoxes::UInt64SpinBox box;
        box.setAccessibleName(QStringLiteral("Samples"));
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(interface->role(), QAccessible::SpinBox);
        QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Samples"));
        const qulonglong highest = std::numeric_limits<qulonglong>::max();
        QCOMPARE(interface->valueInterface()->maximumValue(), QVariant(highest));
        interface->valueInterface()->setCurrentValue(QVariant(highest - 1));
        QCOMPARE(box.value(), highest - 1);
        QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("18446744073709551614"));
        for (const QVariant& bad : {QVariant(-1), QVariant(0.5), QVariant(qQNaN()), QVariant()}) {
            interface->valueInterface()->setCurrentValue(bad);
            QCOMPARE(interface->valueInterface()->currentValue(), QVariant(highest - 1));
        }
        interface->valueInterface()->setCurrentValue(static_cast<double>(highest));
        QCOMPARE(box.value(), highest);
        interface->setText(QAccessible::Value, QStringLiteral("7"));
        QCOMPARE(box.value(), 7U);
        interface->setText(QAccessible::Value, QStringLiteral("x"));
        QVERIFY(!box.inputRefusal().isEmpty());
        QCOMPARE(interface->text(QAccessible::Description), box.inputRefusal());
        interface->editableTextInterface()->replaceText(0, 1, QStringLiteral("9"));
        QCOMPARE(box.value(), 9U);
        interface->editableTextInterface()->replaceText(0, 1, QStringLiteral("7"));
        box.setMaximum(10);
        interface->valueInterface()->setCurrentValue(20);
        QVERIFY(interface->text(QAccessible::Description).contains(QStringLiteral("to 10")));
        box.setReadOnly(true);
        interface->setText(QAccessible::Value, QStringLiteral("8"));
        QVERIFY(interface->state().readOnly && box.value() == 7U);
    }
    void comboBoxesTellAssistiveTechnologies()
    {
        ComboBoxes::UInt64ComboBox box;
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(interface->role(), QAccessible::ComboBox);
        const qulonglong highest = std::numeric_limits<qulonglong>::max();
        interface->valueInterface()->setCurrentValue(QVariant(highest - 1));
        QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("18446744073709551614"));
        QVERIFY(interface->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::showMenuAction()));
    }
    void finishesEditingOnRequest()
    {
        const auto check = [](auto&& box) {
            activate(box);
            QTest::keyClicks(&box, QStringLiteral("12"));
            QCOMPARE(box.value(), 0);
            QVERIFY(box.inputMethodQuery(Qt::ImHints).toInt() & Qt::ImhPreferNumbers);
            GuiBase::Instance().ForceFinishEditing();
            QCOMPARE(box.value(), 12);
        };
        CHECKED(check(SpinBoxes::Int32SpinBox()));
        CHECKED(check(ComboBoxes::Int32ComboBox()));
    }
};

QTEST_MAIN(tst_TypedInput)
#include "tst_typedinput.moc"
