// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/mouse.h"
#include "support/typing.h"

#include <guibase/formats/realnumberdisplayformat.h>
#include <guibase/inputs/spinboxes/spinboxes.h>

#include <QLineEdit>

#include <cfloat>
#include <limits>
#include <utility>

using namespace SpinBoxes;

namespace {

/// Every limit and its neighbour can be set, shown, typed, stepped to, and never passed.
template <typename Box, typename T>
void checkInteger()
{
    constexpr T lowest = std::numeric_limits<T>::lowest();
    constexpr T highest = std::numeric_limits<T>::max();
    Box box;
    box.addDisplayFormat(integerFormat<T>(16, "u"));
    box.setCurrentDisplayFormatIndex(0);
    for (const T value : {T(lowest + 1), lowest, T(highest - 1), highest}) {
        box.setValue(value);
        const QString text = box.textValue();
        box.setValue(T(7));
        enter(box, text);
        QCOMPARE(box.value(), value);
        QCOMPARE(box.inputQuantity(TypedInput::Quantity::Value).template value<T>(), value);
    }
    for (const int steps : {2, INT_MAX, INT_MIN}) {
        const T start = steps < 0 ? lowest : T(highest - 1);
        box.setSingleStep(steps < 0 ? highest : T(1));
        box.setValue(start);
        box.stepBy(steps);
        QCOMPARE(box.value(), start);
        box.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
        box.stepBy(steps);
        QCOMPARE(box.value(), steps < 0 ? lowest : highest);
        box.setCorrectionMode(QAbstractSpinBox::CorrectToPreviousValue);
    }
}

} // namespace

class tst_SpinBoxSteps : public GuardedTest
{
    Q_OBJECT
    using Rounded = TestRows<int, int, int>;
    using Digits = TestRows<QString, int, int, QString>;

private Q_SLOTS:
    void integersKeepTheirLimits()
    {
        checkInteger<Int8SpinBox, qint8>();
        checkInteger<UInt8SpinBox, quint8>();
        checkInteger<Int16SpinBox, qint16>();
        checkInteger<UInt16SpinBox, quint16>();
        checkInteger<Int32SpinBox, int>();
        checkInteger<UInt32SpinBox, quint32>();
        checkInteger<Int64SpinBox, qint64>();
        checkInteger<UInt64SpinBox, quint64>();
    }
    void roundsToMultiples_data()
    {
        Rounded row; // single step, value, multiple
        row.add(5, 13, 15);
        row.add(5, -12, -10);
        row.add(10, -5, -10);
        row.add(0, 13, 13);
        row.add(1, INT_MAX, INT_MAX);
        row.add(1000, INT_MAX, INT_MAX / 1000 * 1000);
    }
    void roundsToMultiples()
    {
        const auto& [step, value, expected] = Rounded::fetch();
        Int32SpinBox box;
        box.setSingleStep(step);
        box.setValue(value);
        QCOMPARE(box.value(), value);
        box.setNormalizeValueToMultipleOfStep(true);
        QCOMPARE(box.value(), expected);
    }
    void roundsWithoutLoss()
    {
        UInt64SpinBox large;
        large.setSingleStep(2);
        QCOMPARE(large.normalizeValueToMultipleOfStep(Q_UINT64_C(18446744073709551615)),
                 Q_UINT64_C(18446744073709551614));
        DoubleSpinBox real;
        real.setSingleStep(0.1);
        real.setNormalizeValueToMultipleOfStep(true);
        real.setValue(0.29);
        QVERIFY(real.value() == 0.3);
        real.setNormalizeValueToMultipleOfStep(false);
        for (int i = 0; i < 7; ++i)
            real.stepBy(1);
        QVERIFY(real.value() == 1.0);
        real.setValue(DBL_MAX);
        real.setSingleStep(DBL_MAX);
        real.stepBy(1);
        QVERIFY(real.value() == DBL_MAX);
        for (const double none : {qQNaN(), qInf()}) {
            real.setValue(none);
            real.setSingleStep(none);
            QVERIFY(real.value() == DBL_MAX && real.singleStep() == DBL_MAX);
        }
        real.setRange(-qInf(), qInf());
        real.setRange(qQNaN(), 1);
        QVERIFY(real.minimum() == -DBL_MAX && real.maximum() == DBL_MAX);
    }
    void followsItsRange()
    {
        Int32SpinBox box;
        QStringList calls;
        const auto log = [&calls](const char* name) {
            return [&calls, name](int value) {
                calls << QString::fromLatin1(name) + QString::number(value);
            };
        };
        connect(&box, &Int32SpinBox::valueChanged, &box, log("value "));
        connect(&box, &Int32SpinBox::minimumChanged, &box, log("min "));
        connect(&box, &Int32SpinBox::maximumChanged, &box, log("max "));
        connect(&box, &Int32SpinBox::rangeChanged, &box, log("range "));
        const auto took = [&calls] { return std::exchange(calls, {}).join(u','); };
        box.setRange(100, 50);
        QCOMPARE(took(), QStringLiteral("value 50,min 50,max 100,range 50"));
        box.setRange({50, 100});
        box.setValue(101);
        QCOMPARE(took(), QString());
        box.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
        box.setValue(101);
        box.setValue(102);
        QCOMPARE(took(), QStringLiteral("value 100,value 100"));
        box.setMaximum(60);
        QCOMPARE(took(), QStringLiteral("value 60,max 60,range 50"));
        QCOMPARE(box.stepEnabled(), QAbstractSpinBox::StepDownEnabled);
        box.setWrapping(true);
        QCOMPARE(box.stepEnabled().toInt(), 3);
        box.stepBy(1);
        QCOMPARE(took(), QStringLiteral("value 60"));
        box.setReadOnly(true);
        QCOMPARE(box.stepEnabled(), QAbstractSpinBox::StepNone);
    }
    void stepsTheDigitAtTheCursor_data()
    {
        Digits row; // text, position of the cursor, steps, text then
        row.add("f= 123.45 MHz", 0, 1, "f= 223.45 MHz");
        row.add("f= 123.45 MHz", 6, -1, "f= 122.45 MHz");
        row.add("f= 123.45 MHz", 13, -6, "f= 123.39 MHz");
        row.add("f= -123.45 MHz", 4, 1, "f= -23.45 MHz");
        row.add("f= 999.99 MHz", 8, 1, "f= 1000.00 MHz");
    }
    void stepsTheDigitAtTheCursor()
    {
        const auto& [text, cursor, steps, expected] = Digits::fetch();
        DoubleSpinBox box;
        auto format = std::make_unique<RealNumberDisplayFormat<double>>();
        format->setPrefix(QStringLiteral("f="));
        format->setSuffix(QStringLiteral("MHz"));
        format->setPrecision(2);
        format->setValueConverter([](double value, auto mode) {
            return mode == ValueDisplayFormatBase<double>::ToDisplay ? value / 1e6 : value * 1e6;
        });
        box.addDisplayFormat(std::move(format));
        box.setCurrentDisplayFormatIndex(0);
        activate(box);
        box.inputLineEdit()->setText(text);
        box.interpret();
        box.inputLineEdit()->setCursorPosition(cursor);
        for (int i = 0; i < qAbs(steps); ++i)
            QTest::keyClick(&box, steps > 0 ? Qt::Key_Up : Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(box.inputLineEdit()->text(), expected);
        QCOMPARE(box.inputLineEdit()->text().size() - box.inputLineEdit()->cursorPosition(),
                 text.size() - cursor);
    }
    void stepsByKeysAndWheel()
    {
        Int8SpinBox box;
        activate(box);
        QTest::keyClicks(&box, QStringLiteral("100"));
        QTest::keyClick(&box, Qt::Key_Up);
        QCOMPARE(box.value(), qint8(101));
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(&box, Qt::Key_PageUp);
        QCOMPARE(box.value(), qint8(121));
        turnWheel(box, 120);
        QCOMPARE(box.value(), qint8(122));
        box.clearFocus();
        turnWheel(box, 120);
        QCOMPARE(box.value(), qint8(122));
        box.setReadOnly(true);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(box.value(), qint8(122));
    }
};

QTEST_MAIN(tst_SpinBoxSteps)
#include "tst_spinboxsteps.moc"
