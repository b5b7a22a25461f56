// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/typing.h"

#include <guibase/formats/realnumberdisplayformat.h>
#include <guibase/inputs/refusalmark.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/inputs/spinboxes/qdatetimespinbox.h>
#include <guibase/inputs/spinboxes/spinboxes.h>
#include <guibase/services/guibase.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QInputMethod>
#include <QLineEdit>

using namespace SpinBoxes;

namespace {

/// A meter that is scaled by a factor of 1000.
std::unique_ptr<IntegralNumberDisplayFormat<int>> kiloFormat()
{
    auto format = std::make_unique<IntegralNumberDisplayFormat<int>>();
    format->setSuffix(QStringLiteral("km"));
    format->setValueConverter([](int value, auto mode) {
        return mode == ValueDisplayFormatBase<int>::ToDisplay ? value / 1000 : value * 1000;
    });
    return format;
}

} // namespace

class tst_SpinBoxes : public GuardedTest
{
    Q_OBJECT
    using Texts = TestRows<QString, QString>;

protected:
    void prepare() override { GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Mega); }

private Q_SLOTS:
    void keepsTypedTextUntilCommitted()
    {
        DoubleSpinBox box;
        box.setRange(0, 10);
        activate(box);
        QLineEdit* edit = box.inputLineEdit();
        QString expected;
        const QString typed = QStringLiteral("12,5 kHz--5e+");
        for (const QChar c : typed) {
            QTest::keyClick(&box, c.toLatin1());
            expected += c;
            QCOMPARE(edit->text(), expected);
            QCOMPARE(edit->cursorPosition(), expected.size());
        }
        edit->selectAll();
        QGuiApplication::clipboard()->setText(QString::fromUtf8(" \u22121.000,5 "));
        edit->paste();
        QCOMPARE(box.value(), 0.0);
        box.setRange(-2000, 10);
        QSignalSpy finished(&box, &QAbstractSpinBox::editingFinished);
        QSignalSpy inputMethod(QGuiApplication::inputMethod(),
                               &QInputMethod::cursorRectangleChanged);
        QTest::keyClick(&box, Qt::Key_Enter);
        QVERIFY(!inputMethod.isEmpty());
        QCOMPARE(box.value(), -1000.5);
        QCOMPARE(edit->text(), QStringLiteral("-1000.500000"));
        QCOMPARE(edit->selectedText(), edit->text());
        QCOMPARE(finished.count(), 1);
        // Digits that are not shown survive when nothing was typed.
        box.setValue(0.123456789);
        box.interpret();
        QCOMPARE(box.value(), 0.123456789);
    }
    void marksRefusedTexts_data()
    {
        Texts row; // text, what the reason tells
        row("ambiguous", "1,500", "type 1.500 or 1500");
        row("beyond the range", "2000", "from 0.000000 to 1000.000000");
        row("markup", "<b>1</b>", "&lt;b");
        row("two lines", "1\n234", "cannot be read. Type");
        row("long", QString(1000000, u'9'), "too long");
        row("not to be cut", QString(40000, u'0') + u'5', "too long");
    }
    void marksRefusedTexts()
    {
        const auto& [text, reason] = Texts::fetch();
        DoubleSpinBox box;
        box.setToolTip(QStringLiteral("Level"));
        box.setRange(0, 1000);
        activate(box);
        enter(box, QStringLiteral("7"));
        enter(box, text);
        QCOMPARE(box.value(), 7.0);
        QCOMPARE(box.inputLineEdit()->text(), QStringLiteral("7.000000"));
        QVERIFY2(box.toolTip().contains(reason), qPrintable(box.toolTip()));
        const auto mark = [&box] { return box.grab().toImage().pixelColor(box.width() / 2, 0); };
        QCOMPARE(mark(), RefusalMark::color(box.palette()));
        QPalette dark = box.palette();
        dark.setColor(QPalette::Base, Qt::black);
        box.setPalette(dark);
        QVERIFY(mark().lightness() > 150);
        box.inputLineEdit()->selectAll();
        box.inputLineEdit()->insert(text);
        QTest::keyClick(&box, Qt::Key_Up);
        QCOMPARE(box.value(), 7.0);
        // Enter again, on the text that came back, hides nothing; a good text does while typed.
        QTest::keyClick(&box, Qt::Key_Return);
        QVERIFY(!box.inputRefusal().isEmpty());
        QTest::keyClicks(&box, QStringLiteral("8"));
        QVERIFY(box.inputRefusal().isEmpty());
        QCOMPARE(box.toolTip(), QStringLiteral("Level"));
        QVERIFY(mark() != RefusalMark::color(box.palette()));
    }
    void guardsJudgeTheUserOnly()
    {
        auto box = std::make_unique<Int32SpinBox>();
        box->setRange(0, 100);
        const QString reason = QStringLiteral("It is odd.");
        box->setValueGuard([&](int value) { return value % 2 == 0 ? QString() : reason; });
        box->setValue(3);
        QCOMPARE(box->value(), 3);
        enter(*box, QStringLiteral("5"));
        QCOMPARE(box->value(), 3);
        QCOMPARE(box->inputRefusal(), reason);
        enter(*box, QStringLiteral("6"));
        QVERIFY(box->value() == 6 && box->inputRefusal().isEmpty());
        box->stepUp();
        QVERIFY(box->value() == 6 && box->inputRefusal() == reason);
        box->setSingleStep(2);
        box->stepUp();
        QVERIFY(box->value() == 8 && box->inputRefusal().isEmpty());
        QVERIFY(!box->setInputValue(9) && box->value() == 8);
        box->setValue(9);
        QVERIFY(box->value() == 9 && box->inputRefusal().isEmpty());
        box->setValueGuard([&](int) { return box.reset(), reason; }); // may destroy its box
        box->stepUp();
        QVERIFY(!box);
    }

    void switchesFormats()
    {
        Int32SpinBox box;
        box.addDisplayFormat(kiloFormat());
        auto meters = std::make_unique<IntegralNumberDisplayFormat<int>>();
        meters->setSuffix(QStringLiteral("m"));
        box.addDisplayFormat(std::move(meters));
        activate(box);
        QSignalSpy lastUsed(&box, &AbstractSpinBox::lastUsedDisplayFormatIndexChanged);
        enter(box, QStringLiteral("5 km"));
        QCOMPARE(box.value(), 5000);
        QCOMPARE(box.inputLineEdit()->text(), QStringLiteral("5000"));
        QCOMPARE(lastUsed.count(), 1);
        box.setAutoSwitchDisplayFormat(true);
        QCOMPARE(box.currentDisplayFormatIndex(), 0);
        QCOMPARE(box.inputLineEdit()->text(), QStringLiteral("5 km"));
        enter(box, QStringLiteral("7 m"));
        enter(box, QStringLiteral("km")); // The unit alone: nothing is refused.
        QCOMPARE(box.currentDisplayFormatIndex(), 0);
        QCOMPARE(box.value(), 7);
        QVERIFY(box.inputRefusal().isEmpty());
        enter(box, QStringLiteral("x m"));
        QCOMPARE(box.currentDisplayFormatIndex(), 1);
        QVERIFY(!box.inputRefusal().isEmpty());
        box.setCurrentDisplayFormatIndex(99);
        QCOMPARE(box.inputLineEdit()->text(), QStringLiteral("7"));
        // A converter that throws, or is none, leaves the box usable.
        box.setCurrentDisplayFormatIndex(0);
        box.displayFormatAt(0)->setValueConverter({});
        box.setValue(8);
        QCOMPARE(box.textValue(), QString());
        QTest::keyClick(&box, Qt::Key_Up, Qt::ControlModifier);
        enter(box, QStringLiteral("9 m"));
        QCOMPARE(box.value(), 9);
    }
    void survivesItsEndInItsSignals()
    {
        const std::function<void(Int32SpinBox&)> changes[] = {
            [](auto& box) { box.setRange(50, 40); },
            [](auto& box) { box.setValue(5); },
            [](auto& box) { box.setCurrentDisplayFormatIndex(1); },
            [](auto& box) {
                box.inputLineEdit()->setText(QStringLiteral("3 km"));
                box.interpret();
            },
            [](auto& box) {
                box.inputLineEdit()->setText(QStringLiteral("3 km"));
                box.stepUp();
            },
        };
        std::unique_ptr<Int32SpinBox> box;
        const auto end = [&box] { box.reset(); };
        const auto endIn = [&](auto signal) -> std::function<void()> {
            return [&, signal] { connect(box.get(), signal, this, end); };
        };
        const std::function<void()> triggers[] = {
            endIn(&Int32SpinBox::valueChanged),
            endIn(&Int32SpinBox::minimumChanged),
            endIn(&Int32SpinBox::maximumChanged),
            endIn(qOverload<int, int>(&Int32SpinBox::rangeChanged)),
            endIn(&Int32SpinBox::currentDisplayFormatIndexChanged),
            endIn(&Int32SpinBox::lastUsedDisplayFormatIndexChanged),
        };
        int ends = 0;
        for (const auto& trigger : triggers) {
            for (const auto& change : changes) {
                box = std::make_unique<Int32SpinBox>();
                box->addDisplayFormat(kiloFormat());
                box->setAutoSwitchDisplayFormat(true);
                trigger();
                change(*box);
                ends += box == nullptr ? 1 : 0;
            }
        }
        QCOMPARE(ends, 13);
    }
    void isWideEnoughForAllValues()
    {
        const auto fits = [](AbstractSpinBox& box) {
            box.resize(box.sizeHint());
            box.grab(); // Lays the line edit out.
            return box.inputLineEdit()->width() >=
                   box.fontMetrics().horizontalAdvance(box.textValue());
        };
        QWidget panel;
        auto* layout = new QHBoxLayout(&panel);
        FrequencySpinBox frequency;
        frequency.setRange(0, 30'000'000);
        frequency.setValue(29'888'888);
        QVERIFY(fits(frequency));
        layout->addWidget(&frequency);
        layout->addStretch();
        panel.show();
        // A format in use that changes needs another width.
        frequency.currentDisplayFormat()->setSuffix(QString(50, u'M'));
        frequency.updateEdit();
        QTRY_VERIFY(frequency.width() > frequency.fontMetrics().horizontalAdvance(u'M') * 50);
        auto format = std::make_unique<RealNumberDisplayFormat<double>>();
        format->setFormat('g');
        format->setSuffix(QStringLiteral("microvolts"));
        DoubleSpinBox real;
        real.addDisplayFormat(std::move(format));
        real.setCurrentDisplayFormatIndex(0);
        real.setRange(-1, 10);
        real.setValue(-0.000222222);
        QVERIFY(fits(real));
        QDateTimeSpinBox date;
        date.setValue(QDateTime(QDate(2025, 9, 24), QTime(20, 0), Qt::UTC)); // A Wednesday.
        QVERIFY(fits(date));
    }
    void keepsWhatIsTypedAtOnce()
    {
        Int32SpinBox box;
        box.setRange(0, 99);
        activate(box);
        QLineEdit* edit = box.inputLineEdit();
        // Keys come before all is selected, and a menu has pasted.
        for (const auto reason : {Qt::OtherFocusReason, Qt::PopupFocusReason}) {
            edit->setText(QStringLiteral("5"));
            QFocusEvent focus(QEvent::FocusIn, reason);
            QCoreApplication::sendEvent(&box, &focus);
            QTest::keyClick(&box, Qt::Key_1);
            QCoreApplication::processEvents();
            QTest::keyClick(&box, Qt::Key_2);
            QCOMPARE(edit->text(), QStringLiteral("512"));
        }
        // The buttons step from what was typed.
        box.setValue(99);
        edit->setText(QStringLiteral("50"));
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.width() - 5, 4));
        QCOMPARE(box.value(), 51);
    }
    void entersFrequencies()
    {
        FrequencySpinBox box;
        activate(box);
        const auto entered = [&box](const char* text) {
            enter(box, QString::fromLatin1(text));
            return box.value();
        };
        QCOMPARE(entered("14226k"), Q_INT64_C(14226000));
        QCOMPARE(entered("1,2 GHz"), Q_INT64_C(1200000000));
        QCOMPARE(entered("7.05"), Q_INT64_C(7050000));
        // What is being typed counts in the unit that is shown.
        box.inputLineEdit()->setText(QStringLiteral("7.1"));
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Kilo);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.inputLineEdit()->text(), QStringLiteral("7100 kHz"));
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Mega);
        entered("998999.999999");
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Giga);
        QCOMPARE(box.inputLineEdit()->text(), QStringLiteral("998.999999999 GHz"));
        QCOMPARE(entered("5"), Q_INT64_C(5000000000));
        QTest::keyClick(&box, Qt::Key_Up);
        QCOMPARE(box.value(), Q_INT64_C(5000001000));
        for (const char* bad : {"14,225 MHz", "1000", "-1 Hz"}) {
            entered(bad);
            QCOMPARE(box.value(), Q_INT64_C(5000001000));
            QVERIFY2(!box.inputRefusal().isEmpty(), bad);
        }
        box.setFollowingFrequencyUnit(false);
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Kilo);
        QCOMPARE(box.currentDisplayFormatIndex(), 3);
    }
    void showsATextInPlaceOfTheMinimum()
    {
        const QString off = QStringLiteral("as recorded, 25 steps");
        FrequencySpinBox box;
        box.setSpecialValueText(off);
        activate(box);
        QLineEdit* edit = box.inputLineEdit();
        const auto isOff = [&] { return box.value() == box.minimum() && edit->text() == off; };
        QVERIFY(isOff() && box.inputRefusal().isEmpty());
        enter(box, QStringLiteral("7"));
        QCOMPARE(edit->text(), QStringLiteral("7 MHz"));
        QGuiApplication::clipboard()->setText(QLatin1Char(' ') + off);
        edit->selectAll();
        edit->paste();
        box.setRange(2500, 10'000'000); // what is typed stays
        QCOMPARE(edit->text(), QLatin1Char(' ') + off);
        box.setNormalizeValueToMultipleOfStep(true);
        QTest::keyClick(&box, Qt::Key_Return);
        QVERIFY(isOff() && box.inputRefusal().isEmpty());
        QTest::keyClick(&box, Qt::Key_Up, Qt::ControlModifier); // no digit of it is the value's
        QCOMPARE(box.value(), 4000);
        box.setRange(4000, 10'000'000);
        QVERIFY(isOff());
        enter(box, QStringLiteral("99 MHz")); // the reason names the number
        QVERIFY(isOff() && box.inputRefusal().contains(QLatin1String("0.004 MHz")));
        box.setMinimum(0);
        QCOMPARE(edit->text(), QStringLiteral("0.004 MHz"));
        QVERIFY(box.sizeHint().width() > box.fontMetrics().horizontalAdvance(off));
    }
};

QTEST_MAIN(tst_SpinBoxes)
#include "tst_spinboxes.moc"
