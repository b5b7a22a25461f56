// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/testrows.h"

#include <jtbase/coordformat.h>

class tst_CoordFormat : public GuardedTest
{
    Q_OBJECT
    using Positions = TestRows<double, double, CoordFormat, QString>;

private Q_SLOTS:
    void positions_data()
    {
        Positions row;
        using enum CoordFormat;
        row.add(48.13731, 11.57528, DegreesMinutesSeconds, "N 48°08'14.3\" E 011°34'31.0\"");
        row.add(48.13731, 11.57528, DegreesMinutes, "N 48°08.239' E 011°34.517'");
        row.add(48.13731, 11.57528, Degrees, "N 48.13731° E 011.57528°");
        // Rounding carries through, and never leaves a sign before a zero.
        row.add(-9.999999, 179.999999, DegreesMinutesSeconds, "S 10°00'00.0\" E 180°00'00.0\"");
        row.add(-1e-7, -1e-7, DegreesMinutes, "N 00°00.000' E 000°00.000'");
        row.add(-1e-7, -1e-7, SignedDegrees, "0.00000 0.00000");
        // The CN Tower in Toronto, known to be at 630084 m E, 4833438 m N of zone 17.
        row.add(43.0 + 38.0 / 60 + 33.24 / 3600, -(79.0 + 23.0 / 60 + 13.7 / 3600), Mgrs,
                "17T PJ 30084 33438");
        // A published worked example: 38N 444140.54 3684706.36.
        row.add(33.3, 44.4, Mgrs, "38S MB 44140 84706");
        row.add(0, 180, Utm, "01N 166021 0000000");
        row.add(-33.857, 151.215, Mgrs, "56H LH 34873 52266");
        row.add(60, 3, Utm, "32V 165640 6666594");
        row.add(84.0001, 0, Utm, "");
        row.add(-80.0001, 0, Mgrs, "");
        // The station of the amateur radio league in Newington, FN31pr.
        row.add(41.714775, -72.727260, MaidenheadLocator, "FN31PR");
        row.add(90, 180, MaidenheadLocator, "AR09AX");
        row.add(38.286108, -76.4291704, Georef, "GJPJ34241716");
        // On borders that binary fractions miss by a hair: 179° 54' W, 89° 57' S.
        row.add(-89.95, -179.9, Georef, "AAAA06000300");
        row.add(-90, -180, Georef, "AAAA00000000");
        row.add(90.01, 0, SignedDegrees, "");
        row.add(0, -180.01, Degrees, "");
        row.add(qQNaN(), 0, Georef, "");
        row.add(0, 0, static_cast<CoordFormat>(coordFormatCount), "");
    }
    void positions()
    {
        const auto& [latitude, longitude, format, expected] = Positions::fetch();
        QCOMPARE(formatPosition(latitude, longitude, format), expected);
    }
    void everyPositionHasATextInEveryFormat()
    {
        QSet<QString> zones;
        for (int latitude = -80; latitude <= 84; latitude += 2) {
            for (int longitude = -180; longitude <= 180; longitude += 3) {
                for (int format = 0; format < coordFormatCount; ++format)
                    QVERIFY(!formatPosition(latitude, longitude, CoordFormat(format)).isEmpty());
                zones << formatPosition(latitude, longitude, CoordFormat::Mgrs).first(3);
            }
        }
        // 60 zones of 20 bands, of which three in the north of Svalbard are not used.
        QCOMPARE(zones.size(), 60 * 20 - 3);
        QVERIFY(!zones.contains(QStringLiteral("34X")));
    }
};

QTEST_GUILESS_MAIN(tst_CoordFormat)
#include "tst_coordformat.moc"
