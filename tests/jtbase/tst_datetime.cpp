// SPDX-License-Identifier: MIT
#include "support/testguard.h"

#include <jtbase/datetime.h>

#include <QTest>

#include <limits>
#include <memory>

using Trov::DateTime;

class DateTimeTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "XYZ-05:30"); }
    void init() { m_guard = std::make_unique<TestGuard>(); }
    void cleanup()
    {
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }
    void formats_data()
    {
        QTest::addColumn<quint64>("microseconds");
        QTest::addColumn<QString>("format");
        QTest::addColumn<qint64>("zone");
        QTest::addColumn<QString>("expected");
        constexpr quint64 time = 1'234'567'890'123'045;
        constexpr quint64 year10000 = 253'402'300'800'000'000;
        const qint64 utc = DateTime::UTC_TimeZone;
        const qint64 local = DateTime::Local_TimeZone;
        QTest::newRow("default") << time << QString() << utc
                                 << QStringLiteral("2009-02-13 23:31:30.123");
        QTest::newRow("local") << time << QString() << local
                               << QStringLiteral("2009-02-14 05:01:30.123");
        QTest::newRow("unknown zone")
            << time << QStringLiteral("hh") << qint64(7) << QStringLiteral("23");
        QTest::newRow("microseconds")
            << time << QStringLiteral("ss.zzzuuu") << utc << QStringLiteral("30.123045");
        QTest::newRow("quoted") << time << QStringLiteral("'uuu' uuu 'it''s uuu'uuuu") << utc
                                << QStringLiteral("uuu 045 it's uuu045u");
        QTest::newRow("open quote")
            << time << QStringLiteral("uuu'uuu") << utc << QStringLiteral("045uuu");
        QTest::newRow("epoch") << quint64(0) << QString() << utc
                               << QStringLiteral("1970-01-01 00:00:00.000");
        QTest::newRow("last") << year10000 - 1 << QStringLiteral("yyyy ss.zzzuuu") << utc
                              << QStringLiteral("9999 59.999999");
        QTest::newRow("later") << year10000 << QString() << utc << QString();
        QTest::newRow("later in local time") << year10000 - 1 << QString() << local << QString();
        QTest::newRow("end of count")
            << std::numeric_limits<quint64>::max() << QString() << local << QString();
    }
    void formats()
    {
        QFETCH(quint64, microseconds);
        QFETCH(QString, format);
        QFETCH(qint64, zone);
        QTEST(DateTime(microseconds).toString(format, zone), "expected");
    }
    void conversion()
    {
        DateTime time;
        time.SetTime(5'000'999);
        QCOMPARE(time.toQDateTime(DateTime::Local_TimeZone).timeSpec(), Qt::LocalTime);
        QCOMPARE(DateTime::fromQDateTime(time.toQDateTime(DateTime::Local_TimeZone)), 5'000'000U);
        QCOMPARE(DateTime::fromQDateTime(QDateTime()), 0U);
        QCOMPARE(DateTime::fromQDateTime(QDateTime::fromMSecsSinceEpoch(-1)), 0U);
        constexpr qint64 far = std::numeric_limits<qint64>::max() / 2;
        QCOMPARE(DateTime::fromQDateTime(QDateTime::fromMSecsSinceEpoch(far, Qt::UTC)),
                 std::numeric_limits<quint64>::max());
    }

private:
    std::unique_ptr<TestGuard> m_guard;
};

QTEST_GUILESS_MAIN(DateTimeTest)
#include "tst_datetime.moc"
