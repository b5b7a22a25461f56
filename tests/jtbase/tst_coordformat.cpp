// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <jtbase/coordformat.h>
#include <jtbase/positionreader.h>

#include <QRandomGenerator>
#include <QVariant>

class tst_CoordFormat : public GuardedTest
{
    Q_OBJECT
    using Positions = TestRows<double, double, CoordFormat, QString>;
    using Texts = TestRows<QString, QString>;

    /// The format's number and the position, or the number of the fault behind a sign.
    static QString readingOf(const QString& text)
    {
        const PositionReading reading = readPosition(text);
        if (!reading.isRead())
            return QString::number(-reading.fault);
        return QStringLiteral("%1: ").arg(int(reading.format)) +
               formatPosition(reading.position.latitude, reading.position.longitude,
                              CoordFormat::SignedDegrees);
    }

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
    void reads_data()
    {
        Texts row;
        const QString munich = QStringLiteral("48.13731 11.57528");
        for (const char* text :
             {"N 48°08'14.3\" E 011°34'31.0\"", "48°08′14.3″N, 11°34′31″E", "48 8 14.3 11 34 31",
              "E11:34:31 N48:08:14.3", "48-08-14.3n 011-34-31e", "480814.3N 0113431E",
              "48°8'14.3''  11°34'31''", "48 8 14,3 / 11 34 31,0"})
            row(text, text, QStringLiteral("0: 48.13731 11.57528"));
        for (const char* text : {"48.13731 11.57528", "48.13731, 11.57528", "48.13731,11.57528",
                                 "48,13731 11,57528", "48,13731,11,57528", "+48.13731+011.57528",
                                 "48.13731° 11.57528°", "٤٨٫١٣٧٣١ ١١٫٥٧٥٢٨"})
            row(text, text, QLatin1String("3: ") + munich);
        row("letters", "48.13731N 11.57528E", QLatin1String("2: ") + munich);
        row("minutes", "N4808.239 E01134.517", "1: 48.13732 11.57528");
        row("south west", "S 33 51.5 W 151 12.5", "1: -33.85833 -151.20833");
        row("minus zero", "-0 30 −0 15", "1: -0.50000 -0.25000");
        row("integers", "48,11", "3: 48.00000 11.00000");
        row("signs part", "48.5-11.5", "3: 48.50000 -11.50000");
        row("utm", "32U 691587 5334769", "4: 48.13731 11.57528");
        row("utm of a map", "32 u 691587mE 5334769mN", "4: 48.13731 11.57528");
        row("hemisphere", "32N 691587 5334769", "4: 48.13731 11.57528");
        row("southern hemisphere", "56S 334873 6252266", "4: -33.85700 151.21500");
        row("zone of the neighbour", "33U 245370 5336500", "4: 48.13076 11.57765");
        row("mgrs without blanks", "32upu9158734769", "5: 48.13731 11.57529");
        row("mgrs of 1 km", "32U PU 91 34", "5: 48.13491 11.57399");
        row("locator of 4", "jn58", "6: 48.50000 11.00000");
        row("locator of 8", "JN58SD12", "6: 48.13542 11.51250");
        row("georef of 1 minute", "NKMD3408", "7: 48.14167 11.57500");
        row("swapped", "120 48", "-2");
        row("too far east", "N 48 E 180 00 01", "-3");
        row("minutes of 60", "48 60 11 0", "-4");
        row("seconds of 60", "N 48 00 60 E 11 0 0", "-4");
        row("no such zone", "61U 691587 5334769", "-5");
        row("other band", "32V 691587 5334769", "-5");
        row("square of another zone", "32U AU 91587 34769", "-5");
        row("square beyond the zone", "32U JU 91587 34769", "-5");
        row("georef of 60 minutes", "NKMD6008", "-4");
        for (const char* text :
             {"", "48", "48 11 12", "N 48 S 11", "N 48 E", "N N 48 11", "48N -11E", "48' 11'",
              "48.5 8 11 34", "4_ 11", "48 11 x", "48;;11", "N 4,°8 E 11", "48° 11° 12°",
              "32U PU 915873476", "JN58S", "AA00AA00AA00", "1e2 3", "48 11,"})
            row.add(text, "-1");
        row("long", QString(101, u'1'), "-1");
    }
    void reads()
    {
        const auto& [text, expected] = Texts::fetch();
        QCOMPARE(readingOf(text), expected);
        QCOMPARE(positionRefusal(readPosition(text), CoordFormat::Utm).isEmpty(),
                 !expected.startsWith(u'-'));
    }
    /// What is shown in a format reads as a place that is shown in the same way.
    void readsWhatIsWritten()
    {
        QRandomGenerator random(20261122);
        QList<GeoPosition> positions{{90, 180},   {-90, -180}, {84, 180},
                                     {-80, -180}, {0, 0},      {-1e-9, -1e-9},
                                     {56, 3},     {72, 42},    {63.9999999, 12}};
        for (int i = 0; i < 300; ++i)
            positions << GeoPosition{random.generateDouble() * 180 - 90,
                                     random.generateDouble() * 360 - 180};
        for (int i = 0; i < 150; ++i) // on borders of zones and bands
            positions << GeoPosition{random.bounded(-10, 10) * 8.0, random.bounded(-30, 30) * 6.0}
                      << GeoPosition{random.bounded(-10, 10) * 8.0 - 1e-7,
                                     random.bounded(-29, 30) * 6.0 - 1e-7};
        for (const GeoPosition& position : positions) {
            for (int format = 0; format < coordFormatCount; ++format) {
                const QString text =
                    formatPosition(position.latitude, position.longitude, CoordFormat(format));
                const PositionReading reading = readPosition(text);
                QVERIFY2(text.isEmpty() || reading.isRead(), qPrintable(text));
                if (text.isEmpty())
                    continue;
                QCOMPARE(reading.format, CoordFormat(format));
                QCOMPARE(formatPosition(reading.position.latitude, reading.position.longitude,
                                        CoordFormat(format)),
                         text);
            }
            const QVariant variant = QVariant::fromValue(position);
            QCOMPARE(QVariant(variant.toString()).value<GeoPosition>(), position);
        }
        QVERIFY(!QVariant(QStringLiteral("nowhere")).convert(QMetaType::fromType<GeoPosition>()));
    }
    void areasCrossTheDateLine()
    {
        const GeoArea pacific{-10, 170, 10, -170};
        for (const double longitude : {170.0, 180.0, -180.0, -170.0})
            QVERIFY(pacific.contains({0, longitude}));
        QVERIFY(!pacific.contains({0, 0}) && !pacific.contains({11, 180}));
        QVERIFY(!GeoArea().contains({0, qQNaN()}));
    }
};

QTEST_GUILESS_MAIN(tst_CoordFormat)
#include "tst_coordformat.moc"
