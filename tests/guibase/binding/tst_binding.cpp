// SPDX-License-Identifier: MIT
#include <guibase/binding/actionbinding.h>
#include <guibase/binding/create.h>
#include <guibase/binding/formbinding.h>
#include <guibase/inputs/comboboxes/comboboxes.h>
#include <guibase/inputs/controllers/controllerdial.h>
#include <guibase/inputs/controllers/controllerslider.h>
#include <guibase/inputs/coordinates/coordinateedit.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/inputs/spinboxes/qdatetimespinbox.h>
#include <guibase/undo/guiundorecordinghelper.h>

#include <valueframework/pendingwrite.h>
#include <valueframework/tree.h>
#include <valueframework/undorecording.h>

#include "support/duetimers.h"
#include "support/guardedtest.h"
#include "support/typing.h"
#include "valueframework/probe.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDial>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QUndoStack>

#include <memory>

using namespace ValueWidgetBinding::Internal;
using Binding = ValueWidgetBinding::ValueWidgetBinding;

namespace {

/// What a pair of value and widget is put to: the value becomes the first element and is shown as
/// the second; the property then becomes the third, and the value the fourth.
using Steps = QVariantList;
using Pair = QString (*)(const Steps&);

template <typename V, typename W, typename C = W>
QString compare(const Steps& steps)
{
    V value(QStringLiteral("value"));
    if constexpr (std::is_same_v<V, ValueNumeric<double>>)
        value.SetRange(-100, 100);
    C widget;
    const char* property = widget.metaObject()->userProperty().name();
    if constexpr (std::is_same_v<W, QProgressBar>)
        property = "value";
    if constexpr (std::is_same_v<W, QComboBox>)
        widget.addItems({QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2")});
    const auto* binding = Create<V, W>(value, widget);
    value.SetVariant(steps[0]);
    if (widget.property(property) != steps[1])
        return QStringLiteral("shown: ") + widget.property(property).toString();
    if (value.GetVariant() != steps[0])
        return QStringLiteral("written back: ") + value.GetVariant().toString();
    widget.setProperty(property, steps[2]);
    if (value.GetVariant() != steps[3])
        return QStringLiteral("entered: ") + value.GetVariant().toString();
    return binding->objectName() == QStringLiteral("{value}->{}") ? QString()
                                                                  : QStringLiteral("name");
}

std::vector<SelectionItem> items(const QList<int>& keys)
{
    std::vector<SelectionItem> result;
    for (const int key : keys)
        result.emplace_back(QStringLiteral("item %1").arg(key), key < 0, key);
    return result;
}

} // namespace

class tst_Binding : public GuardedTest
{
    Q_OBJECT
    using Pairs = TestRows<Pair, QVariantList>;
    using Ways = TestRows<void (*)(std::unique_ptr<QWidget>&)>;

protected:
    void prepare() override { m_undo.clear(); }
    void tidy() override { GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath({}); }

private Q_SLOTS:
    void pairs_data()
    {
        const QDateTime noon(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
        const QDateTime later = noon.addSecs(60);
        using Int = ValueNumeric<int>;
        using Int64 = ValueNumeric<qint64>;
        using Real = ValueNumeric<double>;
        Pairs row;
        row("spin box", compare<Int, QSpinBox>, {7, 7, 8, 8});
        row("rounded", compare<Int, QDoubleSpinBox>, {7, 7.0, 8.5, 9});
        row("dial", compare<Int, QDial>, {7, 7, 8, 8});
        row("index", compare<Int, QComboBox>, {1, QStringLiteral("1"), QStringLiteral("2"), 2});
        row("byte", compare<Int, SpinBoxes::Int8SpinBox>, {-7, -7, 8, 8});
        row("hertz", compare<Int64, SpinBoxes::FrequencySpinBox>,
            {9007199254740LL, 999999999999LL, 5LL, 5LL});
        row("most", compare<ValueNumeric<quint64>, ComboBoxes::UInt64ComboBox>,
            {~0ULL, ~0ULL, ~0ULL - 1, ~0ULL - 1});
        row("digits", compare<Real, QDoubleSpinBox>, {0.123, 0.12, 0.13, 0.13});
        row("item", compare<Real, ComboBoxes::DoubleComboBox>, {0.5, 0.5, 1e9, 100.0});
        row("scale", compare<Real, QProgressBar>, {-50.0, 25, 75, 50.0});
        row("check", compare<Value<bool>, QAbstractButton, QCheckBox>, {true, true, false, false});
        row("line", compare<Value<QString>, QLineEdit>,
            {QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("b")});
        row("text", compare<Value<QString>, QPlainTextEdit>,
            {QStringLiteral("a\nb"), QStringLiteral("a\nb"), QString(), QString()});
        row("time", compare<Value<QDateTime>, QDateTimeEdit>, {noon, noon, later, later});
        row("no time yet", compare<Value<QDateTime>, QDateTimeEdit>,
            {QDateTime(), QDateTime(QDate(2000, 1, 1), QTime(0, 0)), later, later});
        const auto place = [](double latitude) {
            return QVariant::fromValue(GeoPosition{latitude, 11});
        };
        row("slider", compare<Real, ControllerSlider>, {0.123, 0.123, 200.0, 100.0});
        row("whole dial", compare<Int, ControllerDial>, {7, 7.0, 8.4, 8});
        row("position", compare<Value<GeoPosition>, CoordinateEdit>,
            {place(48), place(48), place(49), place(49)});
        row("no position yet", compare<Value<GeoPosition>, CoordinateEdit>,
            {place(91), QVariant::fromValue(GeoPosition()), place(49), place(49)});
        row("typed time", compare<Value<QDateTime>, SpinBoxes::QDateTimeSpinBox>,
            {noon, noon, later, later});
    }
    void pairs()
    {
        const auto& [pair, steps] = Pairs::fetch();
        QCOMPARE(pair(steps), QString());
    }
    void delay()
    {
        ValueNumeric<int> value(QStringLiteral("value"));
        QSpinBox box;
        Create<ValueNumeric<int>, QSpinBox>(value, box)->setDelay(30);
        int count = 0;
        Probe probe([&](auto...) { ++count; });
        value.Attach(&probe);
        for (int i = 1; i <= 5; ++i)
            box.setValue(i);
        QCOMPARE(value.GetValue(), 0);
        QTRY_COMPARE(value.GetValue(), 5);
        QCOMPARE(count, 1);
    }
    void pendingIsNotLost_data()
    {
        Ways row;
        row("focus", [](auto& window) { window->setFocus(); });
        row("hidden", [](auto& window) { window->hide(); });
        row("closed", [](auto& window) { window->close(); });
        row("destroyed", [](auto& window) { window.reset(); });
        row("stored", [](auto&) { PendingWrite::WriteAll(); });
    }
    void pendingIsNotLost()
    {
        const auto& [leave] = Ways::fetch();
        ValueNumeric<int> value(QStringLiteral("value"), 1);
        auto window = std::make_unique<QWidget>();
        auto* box = new SpinBoxes::Int32SpinBox(window.get());
        auto* other = new QSpinBox(window.get());
        window->setFocusProxy(other);
        Create<ValueNumeric<int>, SpinBoxes::Int32SpinBox>(value, *box)->setDelay(100'000);
        window->show();
        window->activateWindow();
        box->setFocus();
        QTRY_VERIFY(box->hasFocus());
        box->setValue(2);
        QCOMPARE(value.GetValue(), 1);
        leave(window);
        QCOMPARE(value.GetValue(), 2);
        if (window == nullptr || !box->hasFocus())
            return;
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("34"));
        box->clearFocus(); // Commits what was typed.
        QCOMPARE(value.GetValue(), 34);
    }
    void transactions()
    {
        ValueNumeric<int> value(QStringLiteral("value"));
        QWidget window;
        auto* box = new QSpinBox(&window);
        Create<ValueNumeric<int>, QSpinBox>(value, *box);
        window.setUpdatesEnabled(false);
        int told = 0;
        connect(box, &QSpinBox::valueChanged, this, [&](int shown) {
            QVERIFY(!box->updatesEnabled());
            told += 1;
            if (shown == 5)
                value.SetValue(6); // Settles although it is told of 5 just now.
        });
        value.SetValue(5);
        QCOMPARE(box->value(), 6);
        QCOMPARE(told, 2);
        window.setUpdatesEnabled(true);
        QVERIFY(box->updatesEnabled());
    }
    void lifetimes()
    {
        auto value = std::make_unique<ValueNumeric<int>>(QStringLiteral("value"));
        auto parent = std::make_unique<QObject>();
        auto box = std::make_unique<QSpinBox>();
        QSpinBox slow;
        QPointer<Binding> own = Create<ValueNumeric<int>, QSpinBox>(*value, *box);
        QPointer<Binding> others = Create<ValueNumeric<int>, QSpinBox>(*value, *box, this);
        QPointer<Binding> parents = Create<ValueNumeric<int>, QSpinBox>(*value, slow, parent.get());
        QPointer<Binding> orphan = Create<ValueNumeric<int>, QSpinBox>(*value, slow);
        orphan->setDelay(0);
        QCOMPARE(value->GetObserverCount(), 4);
        box.reset();
        value->SetValue(3); // Must not reach the box.
        QVERIFY(own.isNull());
        QTRY_VERIFY(others.isNull());
        parent.reset();
        QVERIFY(parents.isNull());
        value->SetState(Observable::Disabled);
        QVERIFY(!slow.isEnabled());
        value->SetState(Observable::Enabled);
        QVERIFY(slow.isEnabled());
        slow.setValue(9);
        value.reset();
        QVERIFY(!slow.isEnabled() && !orphan.isNull());
        slow.setValue(10);
        letTimersFire();
    }
    void limits()
    {
        ValueNumeric<int> value(QStringLiteral("value"), 5, 0, 10);
        QSpinBox box;
        SpinBoxes::Int8SpinBox small;
        Create<ValueNumeric<int>, QSpinBox>(value, box);
        Create<ValueNumeric<int>, SpinBoxes::Int8SpinBox>(value, small);
        QCOMPARE(box.maximum(), 10);
        value.SetRange(20, 1000);
        QCOMPARE(box.minimum() + box.maximum(), 1020);
        QCOMPARE(box.value(), 20);
        value.SetValue(700);
        QVERIFY(small.toolTip().contains(QStringLiteral("700")));
        box.setMaximum(50); // The application's, not an input.
        small.interpret();
        QCOMPARE(value.GetValue(), 700);
        QVERIFY(box.toolTip().contains(QStringLiteral("700")));
        box.setValue(49);
        QCOMPARE(value.GetValue(), 49);
        QCOMPARE(small.value(), 49);
        QVERIFY(box.toolTip().isEmpty() && small.toolTip().isEmpty());

        QComboBox choice;
        ValueNumeric<int> index(QStringLiteral("index"), 2);
        Create<ValueNumeric<int>, QComboBox>(index, choice);
        QVERIFY(!choice.toolTip().isEmpty());
        choice.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        QCOMPARE(choice.currentIndex(), 2);
        choice.clear();
        QCOMPARE(index.GetValue(), 2);

        ValueNumeric<double> real(QStringLiteral("real"), 0.125); // More digits than are shown.
        QDoubleSpinBox field;
        Create<ValueNumeric<double>, QDoubleSpinBox>(real, field);
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(real.GetValue(), 0.125);
        QVERIFY(field.toolTip().isEmpty());
        real.SetValue(std::numeric_limits<double>::infinity());
        QVERIFY(!field.toolTip().isEmpty());

        ComboBoxes::DoubleComboBox level;
        level.setEditable(true);
        level.setRange(0, 9);
        level.setSpecialValueText(QStringLiteral("off"), -1);
        Create<ValueNumeric<double>, ComboBoxes::DoubleComboBox>(real, level);
        real.SetValue(-1);
        QCOMPARE(level.currentText(), QStringLiteral("off"));
        QVERIFY(level.toolTip().isEmpty());
        real.SetValue(-2);
        QVERIFY(level.toolTip().contains(QStringLiteral("-2")));
        enter(level, QStringLiteral("off"));
        QCOMPARE(real.GetValue(), -1);
    }
    void guards()
    {
        ValueNumeric<int> value(QStringLiteral("value"), 8);
        bool isStopped = true;
        const auto guard = [&](int input) {
            return QLatin1String(!isStopped ? "running" : input % 2 != 0 ? "odd" : "");
        };
        SpinBoxes::Int32SpinBox typed;
        QSpinBox plain;
        Create<ValueNumeric<int>, SpinBoxes::Int32SpinBox>(value, typed)->setGuard(guard);
        auto* slow = Create<ValueNumeric<int>, QSpinBox>(value, plain);
        slow->setGuard(guard);
        enter(typed, QStringLiteral("13"));
        QCOMPARE(typed.value(), 8);
        QVERIFY(typed.toolTip().contains(QStringLiteral("odd")));
        enter(typed, QStringLiteral("14"));
        QCOMPARE(plain.value(), 14);
        QVERIFY(typed.toolTip().isEmpty());
        plain.stepUp();
        QCOMPARE(plain.value(), 14);
        value.SetValue(15);
        QCOMPARE(plain.value() + typed.value(), 30);
        slow->setDelay(100'000);
        plain.setValue(16);
        isStopped = false;
        slow->writePending();
        QCOMPARE(plain.value(), 15);
        QVERIFY(plain.toolTip().contains(QStringLiteral("running")));
    }
    void selections()
    {
        ValueSelection selection(QStringLiteral("selection"));
        selection.SetItems(items({1, -2, 3}));
        QComboBox box;
        QLabel label;
        auto* binding = Create<ValueSelection, QComboBox>(
            selection, box,
            [](const SelectionItem& item, QComboBox&) { return item.GetKey() * 10; },
            [](const QVariant& choice, QComboBox&) {
                return SelectionItem({}, false, choice.toInt() / 10);
            });
        Create<ValueSelection, QLabel>(selection, label, {}, {});
        box.show();
        box.setCurrentIndex(2);
        QCOMPARE(label.text(), QStringLiteral("item 3"));
        box.setCurrentIndex(1); // Not for the user.
        QCOMPARE(box.currentIndex(), 2);
        binding->setDelay(0);
        box.setCurrentIndex(0);
        selection.SetItems(items({4, 3, 1}));
        QCOMPARE(box.currentText(), QStringLiteral("30"));
        QTRY_COMPARE(box.currentText(), QStringLiteral("10")); // It has moved, but was chosen.
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the keyboard");
        box.showPopup();
        selection.SetItems({});
        QCOMPARE(box.count() + label.text().size(), 0);
        QVERIFY(!box.view()->isVisible());
    }
    void undoSteps()
    {
        ValueNumeric<int> value(QStringLiteral("value"));
        Tree::Instance().Add(QStringLiteral("base"), &value);
        GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath(QStringLiteral("base"));
        QSlider slider;
        auto* binding = Create<ValueNumeric<int>, QSlider>(value, slider);
        binding->setUndoText(QStringLiteral("level"));
        for (int drag = 0; drag < 2; ++drag) {
            slider.setSliderDown(true);
            slider.setSliderPosition(slider.value() + 3);
            binding->setBurstTime(0); // A drag may pause.
            slider.setSliderPosition(slider.value() + 4);
            slider.setSliderDown(false);
        }
        slider.setValue(20);
        slider.setValue(21);
        binding->setBurstTime(100'000);
        slider.setValue(22);
        slider.setValue(21);
        slider.setFocus();
        QCOMPARE(m_undo.stack()->count(), 4);
        QCOMPARE(m_undo.undoText(), QStringLiteral("level"));
        for (const int expected : {20, 14, 7, 0}) {
            m_undo.undo();
            QCOMPARE(slider.value(), expected);
        }
        QVERIFY(!m_undo.canUndo());
    }
    void form()
    {
        ValueNumeric<int> gain(QStringLiteral("gain"), 3);
        Value<bool> on(QStringLiteral("on"));
        Value<QString> note(QStringLiteral("note"));
        Value<bool> odd(QStringLiteral("odd"));
        for (ValueBase* value : std::initializer_list<ValueBase*>{&gain, &on, &note, &odd})
            Tree::Instance().Add(QStringLiteral("form/part"), value);
        QWidget window;
        auto* panel = new QWidget(&window);
        auto* box = new SpinBoxes::Int8SpinBox(panel);
        box->setObjectName(QStringLiteral("part_gain"));
        auto* action = new QAction(panel);
        action->setObjectName(QStringLiteral("part_on"));
        (new QSlider(panel))->setObjectName(QStringLiteral("part_odd"));
        const auto bound = ValueWidgetBinding::BindForm(window, QStringLiteral("form"), 0);
        QCOMPARE(int(bound.bindings.size() + bound.actions.size()), 2);
        QCOMPARE(bound.pathsWithoutWidget, {QStringLiteral("form/part/note")});
        QCOMPARE(bound.pathsOfOtherKind, {QStringLiteral("form/part/odd")});
        QVERIFY(ValueWidgetBinding::BindForm(window, QStringLiteral("form")).bindings.empty());
        QCOMPARE(box->value(), 3);
        QCOMPARE(bound.bindings.front()->delay(), 0);
        action->trigger();
        QVERIFY(on.GetValue());
        on.SetValue(false);
        QVERIFY(!action->isChecked());
    }

private:
    UndoRecording& m_undo = UndoRecording::Instance();
};

QTEST_MAIN(tst_Binding)
#include "tst_binding.moc"
