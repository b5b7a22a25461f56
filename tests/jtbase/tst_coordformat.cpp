// SPDX-License-Identifier: MIT
#include "support/testguard.h"

#include <jtbase/coordformat.h>

#include <QSet>
#include <QTest>

#include <limits>
#include <memory>

class CoordFormatTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_guard = std::make_unique<TestGuard>(); }
    void cleanup()
    {
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }
    void positions_data()
    {
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::addColumn<CoordFormat>("format");
        QTest::addColumn<QString>("expected");
        const auto row = [](double latitude, double longitude, CoordFormat format,
                            const QString& expected) {
            QTest::addRow("%g %g %d", latitude, longitude, static_cast<int>(format))
                << latitude << longitude << format << expected;
        };
        using enum CoordFormat;
        row(48.13731, 11.57528, DegreesMinutesSeconds,
            QStringLiteral("N 48°08'14.3\" E 011°34'31.0\""));
        row(48.13731, 11.57528, DegreesMinutes, QStringLiteral("N 48°08.239' E 011°34.517'"));
        row(48.13731, 11.57528, Degrees, QStringLiteral("N 48.13731° E 011.57528°"));
        row(48.13731, 11.57528, SignedDegrees, QStringLiteral("48.13731 11.57528"));
        // Rounding carries through, and never leaves a sign before a zero.
        row(-9.999999, 179.999999, DegreesMinutesSeconds,
            QStringLiteral("S 10°00'00.0\" E 180°00'00.0\""));
        row(-1e-7, -1e-7, DegreesMinutes, QStringLiteral("N 00°00.000' E 000°00.000'"));
        row(-1e-7, -1e-7, SignedDegrees, QStringLiteral("0.00000 0.00000"));
        // The CN Tower in Toronto, known to be at 630084 m E, 4833438 m N of zone 17.
        row(43.0 + 38.0 / 60 + 33.24 / 3600, -(79.0 + 23.0 / 60 + 13.7 / 3600), Mgrs,
            QStringLiteral("17T PJ 30084 33438"));
        // A published worked example: 38N 444140.54 3684706.36.
        row(33.3, 44.4, Utm, QStringLiteral("38S 444141 3684706"));
        row(33.3, 44.4, Mgrs, QStringLiteral("38S MB 44140 84706"));
        row(0, 180, Utm, QStringLiteral("01N 166021 0000000"));
        row(-33.857, 151.215, Mgrs, QStringLiteral("56H LH 34873 52266"));
        row(60, 3, Utm, QStringLiteral("32V 165640 6666594"));
        row(84.0001, 0, Utm, QString());
        row(-80.0001, 0, Mgrs, QString());
        // The station of the amateur radio league in Newington, FN31pr.
        row(41.714775, -72.727260, MaidenheadLocator, QStringLiteral("FN31PR"));
        row(48.2, 11.5, MaidenheadLocator, QStringLiteral("JN58SE"));
        row(90, 180, MaidenheadLocator, QStringLiteral("AR09AX"));
        row(38.286108, -76.4291704, Georef, QStringLiteral("GJPJ34241716"));
        // On borders that binary fractions miss by a hair: 179° 54' W, 89° 57' S.
        row(-89.95, -179.9, Georef, QStringLiteral("AAAA06000300"));
        row(-90, -180, Georef, QStringLiteral("AAAA00000000"));
        row(90.01, 0, SignedDegrees, QString());
        row(0, -180.01, Degrees, QString());
        row(std::numeric_limits<double>::quiet_NaN(), 0, Georef, QString());
        row(0, 0, static_cast<CoordFormat>(coordFormatCount), QString());
    }
    void positions()
    {
        QFETCH(double, latitude);
        QFETCH(double, longitude);
        QFETCH(CoordFormat, format);
        QTEST(formatPosition(latitude, longitude, format), "expected");
    }
    void everyPositionHasATextInEveryFormat()
    {
        QHash<QString, int> zones;
        for (int latitude = -90; latitude <= 90; latitude += 2) {
            for (int longitude = -180; longitude <= 180; longitude += 3) {
                for (int format = 0; format < coordFormatCount; ++format) {
                    const bool grid =
                        format == int(CoordFormat::Utm) || format == int(CoordFormat::Mgrs);
                    const bool expressible = !grid || (latitude >= -80 && latitude <= 84);
                    const QString text = formatPosition(latitude, longitude, CoordFormat(format));
                    QCOMPARE(text.isEmpty(), !expressible);
                    if (grid && expressible)
                        ++zones[text.first(3)];
                }
            }
        }
        // 60 zones of 20 bands, of which three in the north of Svalbard are not used.
        QCOMPARE(zones.size(), 60 * 20 - 3);
        QVERIFY(!zones.contains(QStringLiteral("34X")));
        QVERIFY(zones.value(QStringLiteral("32V")) > zones.value(QStringLiteral("31V")));
    }
    void namesAreDistinct()
    {
        QSet<QString> names;
        for (int format = -1; format <= coordFormatCount; ++format)
            names.insert(getTranslatedCoordFormatName(static_cast<CoordFormat>(format)));
        QVERIFY(names.remove(QString()));
        QCOMPARE(names.size(), coordFormatCount);
    }

private:
    std::unique_ptr<TestGuard> m_guard;
};

QTEST_GUILESS_MAIN(CoordFormatTest)
#include "tst_coordformat.moc"
