// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"
#include "support/testrows.h"
#include "support/typing.h"

#include <guibase/inputs/comboboxes/comboboxdisplayer.h>
#include <guibase/inputs/comboboxes/comboboxes.h>

#include <trovappstartup/cfgcenter.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>
#include <QWheelEvent>

#include <cfloat>
#include <limits>

using namespace ComboBoxes;

namespace {

/// The names that the type shows in its meta-object.
template <typename Box>
void checkType(const QByteArray& type)
{
    using T = decltype(Box().value());
    Box box;
    const QMetaObject* meta = box.metaObject();
    QVERIFY(meta->indexOfSignal("valueChanged(" + type + ")") >= 0);
    QVERIFY(meta->indexOfSignal("rangeChanged(" + type + "," + type + ")") >= 0);
    QVERIFY(meta->indexOfSlot("selectClosestIndexForValue(" + type + ")") >= 0);
    QCOMPARE(box.specialValue(), std::numeric_limits<T>::lowest());
    QCOMPARE(box.inputLineEdit()->alignment(), Qt::AlignRight);
}

} // namespace

class TestComboBoxes : public GuardedTest
{
    Q_OBJECT
    using Closest = TestRows<QString, QString, double, int>;
    using Entered = TestRows<QString, int, QString, int, bool>;

private Q_SLOTS:
    void typesShowTheirNames()
    {
        checkType<Int8ComboBox>("qint8");
        checkType<UInt8ComboBox>("quint8");
        checkType<Int16ComboBox>("qint16");
        checkType<UInt16ComboBox>("quint16");
        checkType<Int32ComboBox>("int");
        checkType<UInt32ComboBox>("quint32");
        checkType<Int64ComboBox>("qint64");
        checkType<UInt64ComboBox>("quint64");
        checkType<DoubleComboBox>("double");
    }
    void selectsTheClosestItem_data()
    {
        Closest row; // type, items, value, index
        row("tie", "qint8", "1,3,5", 4, 2);
        row("equal", "qint8", "1,4,4,4", 4, 1);
        row("unreadable is the current value, 0", "qint8", "9,x,7", 3, 1);
        row("special", "qint8", "9,7,Auto", -50, 2);
        row("the far end wraps, and ends the search", "qint8", "-100,99,100", 100, 0);
        row("of unsigned ones, too", "quint8", "10,250,251", 251, 0);
        row("double tie by rounding", "double", "1,3,2,-7", 1e30, 3);
        row("double distances that overflow", "double", "-1e308,-1.5e308", 1.7e308, 0);
        row("double epsilon", "double", "7,0.1000000000000001,0.1", 0.1, 1);
    }
    void selectsTheClosestItem()
    {
        const auto& [type, items, value, index] = Closest::fetch();
        Int8ComboBox small;
        UInt8ComboBox natural;
        DoubleComboBox real;
        small.setSpecialValueText(QStringLiteral("Auto"), -50);
        AbstractComboBox* box = &small;
        if (type != QLatin1String("qint8"))
            box =
                type == QLatin1String("double") ? static_cast<AbstractComboBox*>(&real) : &natural;
        {
            const QSignalBlocker blocker(box);
            box->addItems(items.split(u',', Qt::SkipEmptyParts));
        }
        QVERIFY(box->setProperty("value", value));
        QCOMPARE(box->currentIndex(), index);
        QCOMPARE(box->inputLineEdit()->text(), box->textValue());
        QCOMPARE(box->property("value").toDouble(), value);
    }
    void remembersItemsAsLongAsTheyAreTheSame()
    {
        RandomBytes random("changes of items and formats");
        QStringListModel other;
        Int32ComboBox box;
        const auto number = [&random] { return random.below(200); };
        const auto text = [&] { return QString::number(number(), number() % 3 ? 10 : 16); };
        const std::function<void()> changes[] = {
            [&] { box.addItem(text()); },
            [&] {
                box.insertItems(0, {text(), text()});
            },
            [&] { box.removeItem(number() % (box.count() + 1)); },
            [&] { box.setItemText(number() % (box.count() + 1), text()); },
            [&] { box.setCurrentDisplayFormatIndex(number() % 3 - 1); },
            [&] { box.addDisplayFormat(integerFormat<int>(number() % 30 + 2, "")); },
            [&] { box.displayFormatAt(0)->setSuffix(text()); },
            [&] {
                other.setStringList({text(), text()});
            },
            [&] { box.setModel(&other); },
            [&] { box.setSpecialValueText(text(), number()); },
        };
        box.addDisplayFormat(integerFormat<int>(16, ""));
        for (int round = 0; round < RandomBytes::rounds(300); ++round) {
            changes[random.below(static_cast<int>(std::size(changes)))]();
            const int wanted = number();
            int best = INT_MAX;
            int bestIndex = box.count() == 0 ? -1 : 0;
            for (int i = 0; i < box.count() && best > 0; ++i) {
                bool ok = false;
                const int distance = qAbs(box.itemValue(i, ok) - wanted);
                bestIndex = distance <= best ? i : bestIndex;
                best = qMin(best, distance);
            }
            const QSignalBlocker blocker(&box);
            box.selectClosestIndexForValue(wanted);
            QCOMPARE(box.currentIndex(), bestIndex);
        }
    }
    void followsItsRange()
    {
        Int32ComboBox box;
        QStringList calls;
        const auto log = [&calls](const char* name) {
            return [&calls, name](int value) { calls << QString::asprintf(name, value); };
        };
        connect(&box, &Int32ComboBox::valueChanged, &box, log("value %d"));
        connect(&box, &Int32ComboBox::minimumChanged, &box, log("min %d"));
        connect(&box, &Int32ComboBox::maximumChanged, &box, log("max %d"));
        const auto took = [&calls] { return std::exchange(calls, {}).join(u','); };
        box.setRange(100, 50);
        QCOMPARE(took(), QStringLiteral("value 50,min 50,max 100"));
        box.setValue(7);
        box.setValue(700);
        QCOMPARE(took(), QStringLiteral("value 100"));
        box.setSpecialValueText(QStringLiteral("Auto"), -1);
        box.setMinimum(60);
        box.setValue(59);
        QCOMPARE(took(), QStringLiteral("min 60,value -1"));
        QCOMPARE(box.inputLineEdit()->text(), QStringLiteral("Auto"));
        enter(box, QStringLiteral("65"));
        enter(box, QStringLiteral(" Auto "));
        QCOMPARE(took(), QStringLiteral("value 65,value -1"));
        DoubleComboBox real;
        real.setSpecialValue(qQNaN());
        for (const double none : {qQNaN(), qInf()}) {
            real.setRange(none, -none);
            real.setValue(none);
            QVERIFY(qAbs(real.value()) <= DBL_MAX && real.minimum() == -DBL_MAX);
        }
    }
    void commitsTypedTexts_data()
    {
        Entered row; // text, value then, text then, format used last, whether it is refused
        row("number", "12", 12, "12", -1, false);
        row("other format", "# 10 x", 16, "16", 1, false);
        row("suffix alone", " x ", 7, "7", 1, false);
        row("unreadable with suffix", "? x", 7, "7", 1, true);
        row("unreadable", "?", 7, "7", -1, true);
        row("beyond the type", "99999999999", 7, "7", -1, true);
    }
    void commitsTypedTexts()
    {
        const auto& [text, value, shown, format, isRefused] = Entered::fetch();
        Int32ComboBox box;
        box.addItems({QStringLiteral("7"), QStringLiteral("1000"), QStringLiteral("?")});
        box.addDisplayFormat(integerFormat<int>(10, "y"));
        box.addDisplayFormat(integerFormat<int>(16, "x"));
        box.setRange(0, 1000);
        QSignalSpy lastUsed(&box, &AbstractComboBox::lastUsedDisplayFormatIndexChanged);
        QSignalSpy finished(&box, &AbstractComboBox::editingFinished);
        box.show();
        box.setFocus();
        QTRY_VERIFY(box.inputLineEdit()->hasSelectedText());
        QTest::keyClick(&box, '1'); // Nothing completes it.
        QCOMPARE(box.inputLineEdit()->text(), QStringLiteral("1"));
        enter(box, text);
        QCOMPARE(box.value(), value);
        QCOMPARE(box.inputLineEdit()->selectedText(), shown);
        QCOMPARE(lastUsed.value(0, {-1}).at(0).toInt(), format);
        QCOMPARE(box.toolTip().isEmpty(), !isRefused);
        QCOMPARE(finished.count(), 1);
        box.setAutoSwitchDisplayFormat(true);
        QCOMPARE(box.currentDisplayFormatIndex(), format);
        enter(box, QStringLiteral("#12 y"));
        QCOMPARE(box.inputLineEdit()->text(), QStringLiteral("# 12 y"));
        QVERIFY(box.inputRefusal().isEmpty());
    }
    void picksItems()
    {
        DoubleComboBox box;
        box.addItems({QStringLiteral("1"), QStringLiteral("2.5"), QStringLiteral("10")});
        QCOMPARE(box.value(), 1.0);
        box.setValue(2.123456789);
        QCOMPARE(box.currentIndex(), 1);
        box.interpret(); // Digits that are not shown survive.
        QCOMPARE(box.value(), 2.123456789);
        QWheelEvent wheel({5, 5}, box.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&box, &wheel);
        QCOMPARE(box.value(), 2.123456789);
        QVERIFY(!wheel.isAccepted());
        box.show();
        box.setFocus();
        QTRY_VERIFY(box.inputLineEdit()->hasSelectedText());
        box.inputLineEdit()->setText(QStringLiteral("1.1"));
        QTest::keyClick(&box, Qt::Key_Down); // From the item next to the typed value.
        QCOMPARE(box.value(), 2.5);
        box.setValue(3);
        box.inputLineEdit()->setText(box.itemText(1)); // The same item once more.
        Q_EMIT box.activated(1);
        QCOMPARE(box.value(), 2.5);
        QCoreApplication::sendEvent(&box, &wheel);
        QCOMPARE(box.value(), 10.0);
        box.setValue(10.0000001); // It is shown by the text of an item.
        Q_EMIT box.activated(box.currentIndex());
        QCOMPARE(box.value(), 10.0);
        box.clear();
        QCOMPARE(box.value(), 10.0);
        box.setEditable(false);
        box.setEditable(true); // With another line edit.
        box.inputLineEdit()->setText(QStringLiteral("4"));
        Q_EMIT box.inputLineEdit()->editingFinished();
        QVERIFY(box.value() == 4.0 && box.completer() == nullptr);
    }
    void tellsAssistiveTechnologies()
    {
        UInt64ComboBox box;
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(interface->role(), QAccessible::ComboBox);
        const qulonglong highest = std::numeric_limits<qulonglong>::max();
        interface->valueInterface()->setCurrentValue(QVariant(highest - 1));
        QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("18446744073709551614"));
        QVERIFY(interface->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::showMenuAction()));
    }
    void showsRecentTexts()
    {
        ICfg* cfg = CfgCenter::GetAppCfg(SettingsView);
        cfg->SetString(QStringLiteral("Call0"), QStringLiteral("a"));
        cfg->SetString(QStringLiteral("Call1"), QStringLiteral("b"));
        auto combo = std::make_unique<QComboBox>();
        ComboBoxDisplayer displayer(combo.get(), QStringLiteral("Call"), 2, cfg);
        const auto items = [&combo] {
            QStringList texts{combo->currentText()};
            for (int i = 0; i < combo->count(); ++i)
                texts << combo->itemText(i);
            return texts.join(u',');
        };
        Q_EMIT combo->textActivated(QStringLiteral("b"));
        QTRY_COMPARE(items(), QStringLiteral("b,b,a"));
        displayer.Select(QStringLiteral("c"));
        QTRY_COMPARE(items(), QStringLiteral("c,c,b"));
        QCOMPARE(cfg->GetString(QStringLiteral("Call1")), QStringLiteral("b"));
        combo.reset();
        displayer.Select(QStringLiteral("d"));
        QTRY_COMPARE(cfg->GetString(QStringLiteral("Call0")), QStringLiteral("d"));
    }
};

QTEST_MAIN(TestComboBoxes)
#include "tst_comboboxes.moc"
