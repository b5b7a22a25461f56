// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/mouse.h"
#include "support/randombytes.h"
#include "support/typing.h"

#include <guibase/inputs/comboboxes/comboboxdisplayer.h>
#include <guibase/inputs/comboboxes/comboboxes.h>

#include <trovappstartup/cfgcenter.h>

#include <QCompleter>
#include <QIntValidator>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTreeView>

#include <cfloat>

using namespace ComboBoxes;

namespace {

/// Picks an item in the list, as a user does.
void choose(QComboBox& box, const QModelIndex& item)
{
    box.view()->setCurrentIndex(item);
    QTest::keyClick(box.view(), Qt::Key_Return);
}

/// A box whose items come from a list through a filter.
struct Filtered
{
    QStringListModel model;
    QSortFilterProxyModel proxy;
    Int32ComboBox box;

    void type()
    {
        box.inputLineEdit()->selectAll();
        box.inputLineEdit()->insert(QStringLiteral("12"));
    }
};
using Change = void (*)(Filtered&);

} // namespace

class tst_ComboBoxes : public GuardedTest
{
    Q_OBJECT
    using Closest = TestRows<QString, QString, double, int>;
    using Entered = TestRows<QString, int, QString, int, bool>;
    using Changed = TestRows<QString, int, Change, int, int, QString>;

private Q_SLOTS:
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
    void specialValueLiesBelowTheRange()
    {
        Int32ComboBox box;
        QStringList told;
        connect(&box, &Int32ComboBox::valueChanged, &box,
                [&told](int value) { told << QString::number(value); });
        const auto took = [&told] { return std::exchange(told, {}).join(u','); };
        box.setRange(100, 50);
        box.setValue(7);
        box.setValue(700);
        QCOMPARE(took(), QStringLiteral("50,100"));
        box.setSpecialValueText(QStringLiteral("Auto"), -1);
        box.setMinimum(60);
        box.setValue(59);
        QCOMPARE(took(), QStringLiteral("-1"));
        box.setMinimum(61); // The special value is told of once more.
        QCOMPARE(took(), QStringLiteral("-1"));
        QCOMPARE(box.inputLineEdit()->text(), QStringLiteral("Auto"));
        enter(box, QStringLiteral("65"));
        enter(box, QStringLiteral(" Auto "));
        QCOMPARE(took(), QStringLiteral("65,-1"));
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
        QVERIFY(!turnWheel(box, -120));
        QCOMPARE(box.value(), 2.123456789);
        box.show();
        box.setFocus();
        QTRY_VERIFY(box.inputLineEdit()->hasSelectedText());
        box.inputLineEdit()->setText(QStringLiteral("1.1"));
        QTest::keyClick(&box, Qt::Key_Down); // From the item next to the typed value.
        QCOMPARE(box.value(), 2.5);
        box.setValue(3);
        choose(box, box.model()->index(1, 0)); // The same item once more.
        QCOMPARE(box.value(), 2.5);
        turnWheel(box, -120);
        QCOMPARE(box.value(), 10.0);
        box.setValue(10.0000001); // It is shown by the text of an item.
        choose(box, box.model()->index(2, 0));
        QCOMPARE(box.value(), 10.0);
        box.clear();
        QCOMPARE(box.value(), 10.0);
        box.setEditable(false);
        box.setEditable(true); // With another line edit.
        QTRY_COMPARE(box.inputLineEdit()->alignment(), Qt::AlignRight);
        box.inputLineEdit()->setText(QStringLiteral("4"));
        Q_EMIT box.inputLineEdit()->editingFinished();
        QVERIFY(box.value() == 4.0 && box.completer() == nullptr);
        // What the application sets stays.
        box.setEditable(false);
        box.hide();
        box.setEditable(true);
        box.setCompleter(new QCompleter(&box));
        box.setValidator(new QIntValidator(&box));
        box.inputLineEdit()->setAlignment(Qt::AlignHCenter);
        box.inputLineEdit()->setMaxLength(5);
        box.show();
        QTRY_COMPARE(box.inputLineEdit()->text(), QStringLiteral("4.000000").left(5));
        QVERIFY(box.completer() != nullptr && box.validator() != nullptr);
        QVERIFY(box.inputLineEdit()->alignment() == Qt::AlignHCenter &&
                box.inputLineEdit()->maxLength() == 5);
    }
    void picksNestedItems()
    {
        QStandardItemModel model;
        for (const char* text : {"10", "20", "30"})
            model.appendRow(new QStandardItem(QString::fromLatin1(text)));
        model.item(0)->appendRow(new QStandardItem(QStringLiteral("1")));
        model.item(0)->appendRow(new QStandardItem(QStringLiteral("29")));
        Int32ComboBox box;
        auto* tree = new QTreeView;
        box.setView(tree);
        box.setModel(&model);
        box.show();
        tree->expandAll();
        const QModelIndex nested = model.item(0)->child(1)->index();
        for (const int former : {10, 29, 30}) {
            box.setValue(former);
            choose(box, nested);
            QCOMPARE(box.value(), 29);
            choose(box, nested);
            QCOMPARE(box.value(), 29);
        }
    }
    void keepsItsValueWhileItemsChange_data()
    {
        Changed row; // items, value, what happens; index and value then, and the text shown
        // clang-format off
        row("icon", "1,5,9", 4, [](Filtered& at) {
            Q_EMIT at.model.dataChanged(at.model.index(1), at.model.index(1)); }, 1, 4, "4");
        row("row above goes", "1,5,9", 4, [](Filtered& at) { at.model.removeRow(0); }, 0, 4, "4");
        row("current row goes", "5,7,9", 7, [](Filtered& at) { at.model.removeRow(1); }, 1, 9, "9");
        row("first row goes", "5,7", 5, [](Filtered& at) { at.model.removeRow(0); }, 0, 7, "7");
        row("insertion while typing", "5,7", 7, [](Filtered& at) {
            at.type();
            at.box.insertItem(0, QStringLiteral("3")); }, 2, 7, "12");
        row("removal while typing", "5,7", 7, [](Filtered& at) {
            at.type();
            at.model.removeRow(1); }, 0, 7, "12");
        row("other rows", "5,7", 5, [](Filtered& at) {
            at.model.setStringList({QStringLiteral("8")}); }, 0, 8, "8");
        row("no rows", "", 5, [](Filtered& at) { at.model.setStringList({}); }, -1, 5, "5");
        row("filter", "5,10,7", 10, [](Filtered& at) {
            at.proxy.setFilterFixedString(QStringLiteral("7")); }, 0, 7, "7");
        row("value in a slot", "5,7,10", 5, [](Filtered& at) {
            connect(&at.box, &QComboBox::currentIndexChanged, &at.box, [&at] { at.box.setValue(10); });
            at.model.removeRow(0); }, 1, 10, "10");
        // clang-format on
    }
    void keepsItsValueWhileItemsChange()
    {
        const auto& [items, value, change, index, expected, text] = Changed::fetch();
        Filtered at;
        at.model.setStringList(items.split(u',', Qt::SkipEmptyParts));
        at.proxy.setSourceModel(&at.model);
        at.box.setModel(&at.proxy);
        at.box.setValue(value);
        QTRY_COMPARE(at.box.inputLineEdit()->text(), QString::number(value));
        change(at);
        QCOMPARE(at.box.currentIndex(), index);
        QCOMPARE(at.box.value(), expected);
        QCOMPARE(at.box.inputLineEdit()->text(), text);
        at.box.interpret();
        QCOMPARE(at.box.value(), text.toInt());
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
        // Whoever hears of a change may end the displayer.
        auto ended =
            std::make_unique<ComboBoxDisplayer>(combo.get(), QStringLiteral("End"), 2, cfg);
        connect(combo.get(), &QComboBox::currentIndexChanged, this, [&ended] { ended.reset(); });
        ended->InsertItem(0, QStringLiteral("x"));
        QVERIFY(ended == nullptr);
        combo.reset();
        displayer.Select(QStringLiteral("d"));
        QTRY_COMPARE(cfg->GetString(QStringLiteral("Call0")), QStringLiteral("d"));
    }
};

QTEST_MAIN(tst_ComboBoxes)
#include "tst_comboboxes.moc"
