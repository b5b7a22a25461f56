// SPDX-License-Identifier: MIT
#include "support/testrows.h"

#include <radiopanes/core/bandplan.h>

#include <QDir>
#include <QTemporaryFile>

using namespace RadioPanes;

class tst_BandPlan : public QObject
{
    Q_OBJECT
    using Lines = TestRows<QString, QString, QString>;

private Q_SLOTS:
    void linesAreReadOrReported_data()
    {
        Lines row;
        row("units", "87.5 MHz, 108mhz, FM broadcast", "87500000, 108000000, FM broadcast\n", "");
        row("hertz, baseband, commas in the name", "-12e3, 12000, a, b", "-12000, 12000, a, b\n",
            "");
        row("bookmark", "\xEF\xBB\xBF# mine\r\n\r\n121.5 MHz, Distress\r\n",
            "121500000, 121500000, Distress\n", "");
        const QString part = QStringLiteral("1, 2, ");
        row("long", part + QString(1 << 20, QLatin1Char('x')),
            part + QString(BandPlan::maximumName, QLatin1Char('x')) + QLatin1Char('\n'), "");
        row("in order", "2, 3, b\n1, 3, a", "1, 3, a\n2, 3, b\n", "");
        row("good lines stay", "1, 2, a\nabc, 2, b\n3, 4, c", "1, 2, a\n3, 4, c\n",
            "Line 2: “abc”");
        row("reversed", "9, 2, a", "", "Line 1: the stop is below the start");
        row("no number that is meant", "nan, 2, a\n1, 1e99, b", "1, 1, 1e99, b\n", "Line 1: “nan”");
    }

    void linesAreReadOrReported()
    {
        const auto [text, expected, error] = Lines::fetch();
        const BandPlan::Reading reading = BandPlan::parse(text);
        QCOMPARE(reading.plan.text(), expected);
        QCOMPARE(reading.errors.isEmpty(), error.isEmpty());
        QVERIFY(error.isEmpty() || reading.errors.first().startsWith(error));
        QVERIFY(error.isEmpty() || reading.errors.first().contains(QLatin1String("start, stop")));
        QCOMPARE(BandPlan::parse(reading.plan.text()).plan, reading.plan);
    }

    void whatIsNoPlanIsReportedOnce()
    {
        QVERIFY(!BandPlan::read(QDir::tempPath()).errors.isEmpty());
        const QString many = QStringLiteral("1, 2, a\n").repeated(BandPlan::maximumEntries + 5);
        const BandPlan::Reading full = BandPlan::parse(many);
        QCOMPARE(full.plan.entries().size(), BandPlan::maximumEntries);
        QCOMPARE(full.errors.size(), 1);
        QCOMPARE(BandPlan::parse(QStringLiteral("x\n").repeated(1000)).errors.size(), 10);
        QTemporaryFile file;
        QVERIFY(file.open() && file.resize(BandPlan::maximumBytes + 1));
        QCOMPARE(BandPlan::read(file.fileName()).errors.size(), 1);
    }
};

QTEST_GUILESS_MAIN(tst_BandPlan)
#include "tst_bandplan.moc"
