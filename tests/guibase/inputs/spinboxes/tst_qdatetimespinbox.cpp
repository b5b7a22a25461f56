// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/typing.h"

#include <guibase/formats/qdatetimedisplayformat.h>
#include <guibase/inputs/spinboxes/qdatetimespinbox.h>
#include <guibase/services/guibase.h>

#include <jtbase/datetime.h>
#include <valueframework/valueselection.h>

#include <QLineEdit>

using namespace SpinBoxes;

class tst_QDateTimeSpinBox : public GuardedTest
{
    Q_OBJECT

    static void setFormat(QDateTimeSpinBox& box, const QString& text)
    {
        auto format = std::make_unique<QDateTimeDisplayFormat>();
        format->setDateTimeFormat(text);
        box.addDisplayFormat(std::move(format));
        box.setCurrentDisplayFormatIndex(0);
    }

protected:
    void prepare() override
    {
        GuiBase::Instance().GetTimeZone()->SetValue(Trov::DateTime::Local_TimeZone);
    }

private Q_SLOTS:
    void showsDatesInTheChosenZone()
    {
        QDateTimeSpinBox box;
        setFormat(box, QStringLiteral("yyyy-MM-dd 'at' hh:mm:ss"));
        ValueSelection& zone = *GuiBase::Instance().GetTimeZone();
        const QDateTime time(QDate(2024, 7, 1), QTime(12, 0), Qt::UTC);
        box.setValue(time);
        QCOMPARE(box.textValue(),
                 time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd 'at' hh:mm:ss")));
        activate(box);
        zone.SetValue(Trov::DateTime::UTC_TimeZone);
        QLineEdit* edit = box.inputLineEdit();
        QCOMPARE(edit->text(), QStringLiteral("2024-07-01 at 12:00:00"));
        enter(box, QStringLiteral("2024-07-02 at 12:00:00"));
        QCOMPARE(box.value(), time.addDays(1));
        edit->setCursorPosition(17); // Behind the hours.
        QTest::keyClick(&box, Qt::Key_Up);
        edit->setCursorPosition(12);
        QTest::keyClick(&box, Qt::Key_PageDown);
        edit->setCursorPosition(0);
        QTest::keyClick(&box, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(edit->text(), QStringLiteral("2025-06-22 at 12:01:00"));
        // What is being typed counts in the zone that is shown.
        edit->setText(QStringLiteral("2025-06-22 at 12:00:30"));
        zone.SetValue(Trov::DateTime::Local_TimeZone);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), QDateTime(QDate(2025, 6, 22), QTime(12, 0, 30), Qt::UTC));
        enter(box, QStringLiteral("2025-02-30 at 12:02:00"));
        QVERIFY(!box.inputRefusal().isEmpty());
        box.setValue(QDateTime());
        for (const QDateTime& limit : {box.minimumLimit(), box.maximumLimit()}) {
            box.setValue(limit);
            box.stepBy(limit.date().year() < 2000 ? -1 : 1);
            QCOMPARE(box.value(), limit);
        }
    }
    void findsHalfDaysAndQuotes()
    {
        QDateTimeSpinBox box;
        setFormat(box, QStringLiteral("h:mm AP 'o''clock', MMMM d"));
        GuiBase::Instance().GetTimeZone()->SetValue(Trov::DateTime::UTC_TimeZone);
        activate(box);
        for (const int cursor : {0, 5, 20, 27}) {
            box.inputLineEdit()->setCursorPosition(cursor);
            box.stepBy(1);
        }
        QCOMPARE(box.textValue(), QStringLiteral("1:00 PM o'clock, February 2"));
    }
};

QTEST_MAIN(tst_QDateTimeSpinBox)
#include "tst_qdatetimespinbox.moc"
