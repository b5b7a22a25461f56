// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <jtbase/datetime.h>

#include <limits>

using Trov::DateTime;

class tst_DateTime : public GuardedTest
{
    Q_OBJECT
    using Formats = TestRows<quint64, QString, qint64, QString>;

private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "XYZ-05:30"); }
    void formats_data()
    {
        constexpr quint64 time = 1'234'567'890'123'045;
        constexpr quint64 year10000 = 253'402'300'800'000'000;
        const qint64 utc = DateTime::UTC_TimeZone;
        const qint64 local = DateTime::Local_TimeZone;
        Formats row;
        row("local", time, "", local, "2009-02-14 05:01:30.123");
        row("unknown zone", time, "hh", 7, "23");
        row("quoted", time, "'uuu' uuu 'it''s uuu'uuuu", utc, "uuu 045 it's uuu045u");
        row("open quote", time, "uuu'uuu", utc, "045uuu");
        row("epoch", 0, "", utc, "1970-01-01 00:00:00.000");
        row("last", year10000 - 1, "yyyy ss.zzzuuu", utc, "9999 59.999999");
        row("later", year10000, "", utc, "");
        row("later in local time", year10000 - 1, "", local, "");
        row("end of count", std::numeric_limits<quint64>::max(), "", local, "");
    }
    void formats()
    {
        const auto& [microseconds, format, zone, expected] = Formats::fetch();
        QCOMPARE(DateTime(microseconds).toString(format, zone), expected);
    }
    void conversion()
    {
        const QDateTime local = DateTime(5'000'999).toQDateTime(DateTime::Local_TimeZone);
        QCOMPARE(local.timeSpec(), Qt::LocalTime);
        QCOMPARE(DateTime::fromQDateTime(local), 5'000'000U);
        QCOMPARE(DateTime::fromQDateTime(QDateTime()), 0U);
        QCOMPARE(DateTime::fromQDateTime(QDateTime::fromMSecsSinceEpoch(-1)), 0U);
        constexpr qint64 far = std::numeric_limits<qint64>::max() / 2;
        QCOMPARE(DateTime::fromQDateTime(QDateTime::fromMSecsSinceEpoch(far, Qt::UTC)),
                 std::numeric_limits<quint64>::max());
    }
};

QTEST_GUILESS_MAIN(tst_DateTime)
#include "tst_datetime.moc"
