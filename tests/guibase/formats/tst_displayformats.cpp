// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/formats/displayformatlist.h>
#include <guibase/formats/frequencydisplayformat.h>
#include <guibase/formats/integralnumberdisplayformat.h>
#include <guibase/formats/qdatetimedisplayformat.h>
#include <guibase/formats/realnumberdisplayformat.h>

#include <QElapsedTimer>
#include <QTimeZone>

#include <bit>
#include <cfloat>
#include <limits>

namespace {

/// A locale as the formats have it.
QLocale ungrouped(const QString& name)
{
    QLocale locale(name);
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

/// Writes what is read, or "-" where nothing is.
template <typename Format>
QString echoed(const Format& format, const QString& text)
{
    bool ok = false;
    const auto value = format.valueFromFullText(text, &ok);
    return ok ? format.fullTextFromValue(value) : QStringLiteral("-");
}

template <typename Format>
std::unique_ptr<Format> withSuffix(const QString& suffix, const QString& pattern = {})
{
    auto format = std::make_unique<Format>();
    format->setSuffix(suffix);
    if (!pattern.isEmpty())
        format->setSuffixPattern(QRegularExpression(pattern));
    return format;
}

/// Texts made of what numbers are made of, and sometimes of anything.
QString randomText(RandomBytes& random)
{
    static const QString characters =
        QStringLiteral("0123456789012345678901234567890123456789..,,  ''+--eExXkKmMgGhHzZ:/TZ") +
        QString::fromUtf8("\u00a0\u202f\u2019\u2212\uff11\uff0e\uff0c\u0661\u066b\u066c\u200e");
    QString text;
    const int length = random.below(14);
    for (int i = 0; i < length; ++i) {
        text += random.below(40) == 0
                    ? QChar(static_cast<char16_t>(random.below(0x10000)))
                    : characters[random.below(static_cast<int>(characters.size()))];
    }
    return text;
}

/// What is read must write to a text that reads the same.
template <typename T>
bool survives(const ValueDisplayFormatBase<T>& format, const QString& text)
{
    bool ok = false;
    const T value = format.valueFromFullText(text, &ok);
    if (!ok)
        return true;
    const T again = format.valueFromFullText(format.fullTextFromValue(value), &ok);
    if (!ok || (std::is_integral_v<T> && again != value))
        return false;
    // Real numbers may lose decimals, but once only.
    return format.valueFromFullText(format.fullTextFromValue(again), &ok) == again && ok;
}

} // namespace

class tst_DisplayFormats : public GuardedTest
{
    Q_OBJECT
    using Framed = TestRows<QString, QString, QString>;
    using Numbers = TestRows<QString, QString, QString, QString>;
    using Frequencies = TestRows<int, QString, QString>;
    using Messages = TestRows<int, QString, QString>;
    using Dates = TestRows<QString, QString, QString, QString>;

private Q_SLOTS:
    void framesNumbers_data()
    {
        Framed row; // pattern of the suffix "MHz", text, what is written for what was read
        row("as written", "", "f= 5 MHz", "f= 5 MHz");
        row("extra blanks", "", "  f= 5 MHz \t", "f= 5 MHz");
        row("suffix inside", "", "5 MHz x", "-");
        row("prefix twice", "", "f= f= 5", "-");
        row("other case", "", "5 mhz", "-");
        row("own pattern", "[mM]([hH]z)?", "5m", "f= 5 MHz");
        row("matches every digit", ".*", "51", "f= 5 MHz");
        row("invalid", "(", "5", "f= 5 MHz");
        row("prefix behind blanks", "", "  F=5", "f= 5 MHz");
        row("prefix not in front", "", "5 F=", "-");
    }
    void framesNumbers()
    {
        const auto& [suffixPattern, text, echo] = Framed::fetch();
        const auto format =
            withSuffix<IntegralNumberDisplayFormat<int>>(QStringLiteral("MHz"), suffixPattern);
        format->setPrefix(QStringLiteral("f="));
        format->setPrefixPattern(QRegularExpression(QStringLiteral("^[fF]=")));
        QCOMPARE(echoed(*format->clone(), text), echo);
    }
    void readsNumbers_data()
    {
        // Locale, text; as written in base 10, and in the C locale with six decimals; "-" is
        // refused.
        Numbers row;
        row.add("C", " +7 ", "7", "7.000000");
        row.add("C", "\u22121500", "-1500", "-1500.000000");
        row.add("C", "\uff11\uff15", "15", "15.000000");
        row.add("C", "1.5", "-", "1.500000");
        row.add("C", "\uff11\uff0e\uff15", "-", "1.500000");
        row.add("C", "1,500", "-", "-");
        row.add("C", "1234,500", "-", "1234.500000");
        row.add("C", "1,234.5", "-", "1234.500000");
        row.add("C", "1 234 567", "1234567", "1234567.000000");
        row.add("C", "1\u202f234,500", "-", "1234.500000");
        row.add("C", "1'500", "1500", "1500.000000");
        row.add("C", "0.475.500", "-", "-");
        row.add("C", "0 475", "-", "-");
        row.add("C", "1,5e3", "-", "1500.000000");
        row.add("C", "2147483648", "-", "2147483648.000000");
        row.add("de_DE", "1,500", "-", "1.500000");
        row.add("de_DE", "1.234,5", "-", "1234.500000");
        row.add("fr_FR", "14.225", "-", "14.225000");
        row.add("ar_EG", "\u0661\u0665", "15", "15.000000");
    }
    void readsNumbers()
    {
        const auto& [localeName, text, expectedInteger, expectedReal] = Numbers::fetch();
        for (const bool useLocale : {false, true}) {
            IntegralNumberDisplayFormat<int> integer;
            RealNumberDisplayFormat<double> real;
            integer.setLocale(ungrouped(localeName));
            real.setLocale(ungrouped(localeName));
            integer.setUseLocale(useLocale);
            real.setUseLocale(useLocale);
            bool ok = false;
            const int whole = integer.valueFromFullText(text, &ok);
            QCOMPARE(ok ? QString::number(whole) : QStringLiteral("-"), expectedInteger);
            QVERIFY(!integer.refusalReason(text).isEmpty());
            const double number = real.valueFromFullText(text, &ok);
            QCOMPARE(ok ? QString::number(number, 'f', 6) : QStringLiteral("-"), expectedReal);
        }
    }
    void saysWhatToTypeInstead_data()
    {
        Messages row; // unit of frequencies (0: real number, -n: integer in base n), text, message
        row.add(0, "1,500", "Ambiguous: type 1.500 or 1500.");
        row.add(0, " ", "Type a number, such as 12.5.");
        row.add(0, "abc", "\"abc\" cannot be read. Type a number such as 12.5.");
        row.add(-10, "1,500", "Type whole numbers without separators: 1500.");
        row.add(-10, "7.5", "Type a whole number, without decimals.");
        row.add(-10, "128", "Type a number from -128 to 127.");
        row.add(-16, "xyz", "\"xyz\" cannot be read. Type a number such as 1a.");
        row.add(1, "14,225", "Type whole numbers without separators: 14225 Hz.");
        row.add(3, "7.074.000", "Ambiguous: type 7074000 Hz or 7.074 MHz.");
        row.add(3, "14,225", "Ambiguous: type 14.225 MHz or 14225 MHz.");
        row.add(3, "1.0000001", "Type whole hertz: at most 6 decimals in MHz.");
    }
    void saysWhatToTypeInstead()
    {
        const auto& [unit, text, message] = Messages::fetch();
        IntegralNumberDisplayFormat<signed char> integer;
        integer.setBase(-unit);
        const RealNumberDisplayFormat<double> real;
        const FrequencyDisplayFormat frequency(static_cast<UnitPrefix::ESuffix>(unit));
        QCOMPARE(unit < 0    ? integer.refusalReason(text)
                 : unit == 0 ? real.refusalReason(text)
                             : frequency.refusalReason(text),
                 message);
    }
    void keepsExtremes()
    {
        // No integer beyond 2^53 may pass through a double.
        IntegralNumberDisplayFormat<quint64> format;
        QCOMPARE(echoed(format, QStringLiteral("18.446.744.073.709.551.615")),
                 QStringLiteral("18446744073709551615"));
        format.setBase(16);
        QCOMPARE(echoed(format, QStringLiteral("0xFFFFFFFFFFFFFFFE")),
                 QStringLiteral("fffffffffffffffe"));
        format.setBase(10);
        format.setLocale(QLocale(QStringLiteral("de_DE"))); // With groups, none of which is zero.
        QCOMPARE(echoed(format, QStringLiteral("0.475.500")), QStringLiteral("-"));
        IntegralNumberDisplayFormat<int> hexadecimal;
        hexadecimal.setBase(16);
        QCOMPARE(echoed(hexadecimal, QString::fromUtf8("\u22120x80")), QStringLiteral("-80"));
        QCOMPARE(echoed(hexadecimal, QString::fromUtf8("\uff21\uff42")), QStringLiteral("ab"));
        QVERIFY(hexadecimal.refusalReason(QStringLiteral("fffffffff"))
                    .contains(QStringLiteral("7fffffff")));
        // Affixes count as such, although they could be digits.
        hexadecimal.setPrefix(QStringLiteral("f"));
        hexadecimal.setSuffix(QStringLiteral("B"));
        QCOMPARE(echoed(hexadecimal, QStringLiteral("ff1B")), QStringLiteral("f f1 B"));
        RealNumberDisplayFormat<double> real;
        real.setLocale(format.locale());
        QCOMPARE(echoed(real, QStringLiteral("-1.500")), QStringLiteral("-1,500000"));
        real.setUseLocale(true);
        QCOMPARE(echoed(real, QStringLiteral("-1.500")), QStringLiteral("-1.500,000000"));
        bool ok = false;
        QCOMPARE(real.valueFromFullText(real.fullTextFromValue(-DBL_MAX), &ok), -DBL_MAX);
    }
    void writesLikeTheLocale()
    {
        RandomBytes random("writesLikeTheLocale");
        QList<double> numbers{0.0, -0.0, 0.5, 2.5, -1e-9, 1e23, DBL_MIN, DBL_MAX, 999999.9999995};
        const int rounds = RandomBytes::rounds(20000);
        for (int i = 0; i < rounds; ++i) {
            const double mantissa = static_cast<double>(random.engine()()) / 1e6;
            const double any = std::bit_cast<double>(random.engine()());
            numbers << (i % 2 == 0 ? mantissa - 5e12 : std::isfinite(any) ? any : 0.375);
            numbers << static_cast<double>(random.below(100000)) / 1024.0; // Many ties.
        }
        for (const char* name : {"C", "de_DE", "ar_EG"}) {
            RealNumberDisplayFormat<double> real;
            real.setLocale(ungrouped(QString::fromLatin1(name)));
            IntegralNumberDisplayFormat<qint64> integer;
            integer.setLocale(real.locale());
            real.setPrecision(std::numeric_limits<int>::max());
            QCOMPARE(real.textFromValue(0.25), real.locale().toString(0.25, 'f', 1074));
            for (const double number : std::as_const(numbers)) {
                for (const int precision : {6, -1, 0, 3}) {
                    real.setPrecision(precision);
                    QCOMPARE(real.textFromValue(number),
                             real.locale().toString(number, 'f', precision));
                }
                const auto whole = std::bit_cast<qint64>(number);
                QCOMPARE(integer.textFromValue(whole), integer.locale().toString(whole));
                bool ok = false;
                const QString text = QString::number(number, 'g', 17);
                const double read = real.valueFromText(text, &ok);
                bool expectedOk = false;
                const double expected = QLocale::c().toDouble(text, &expectedOk);
                QVERIFY2(!ok || read == expected, qPrintable(text));
                QVERIFY2(ok == expectedOk || text.contains(u'.'), qPrintable(text));
            }
        }
    }
    void triesFormatsInOrder()
    {
        const std::tuple<int, int, QList<int>> orders[] = {
            {0, -1, {-1}}, {2, -1, {-1, 0, 1}}, {3, 0, {0, 1, 2}}, {3, 2, {2, 1, 0}}};
        for (const auto& [count, current, expectedOrder] : orders) {
            DisplayFormatList<int> list;
            for (int i = 0; i < count; ++i)
                list.add(withSuffix<IntegralNumberDisplayFormat<int>>(QStringLiteral("s")));
            QList<int> order;
            for (const auto& [format, index] : list.trialOrder(current))
                order << index;
            QCOMPARE(order, expectedOrder);
            // All of them read it: the first one wins.
            QCOMPARE(list.read(QStringLiteral("7"), current, 3).index, order.first());
        }
    }
    void survivesBadConvertersAndPatterns()
    {
        using Format = IntegralNumberDisplayFormat<int>;
        DisplayFormatList<int> list;
        for (const char* suffix : {"Hz", "MHz", "MHz"})
            list.add(withSuffix<Format>(QString::fromLatin1(suffix)));
        // The longest suffix tells the format of an unreadable text, the first one among equals.
        auto reading = list.read(QStringLiteral("abc MHz "), 0, 3);
        QCOMPARE(reading.index, 1);
        QVERIFY(!list.read(QStringLiteral("abc MHz x"), 0, 3).isKnown());

        const auto thrower = [](int, auto) -> int { throw 5; };
        using Converter = ValueDisplayFormatBase<int>::ValueConverter;
        for (const auto& converter : {Converter(), Converter(thrower)}) {
            list.at(1)->setValueConverter(converter);
            QCOMPARE(list.write(5, 1), QString());
            reading = list.read(QStringLiteral("5"), 1, 3);
            QCOMPARE(reading.index, 0);
        }
        bool ok = false;
        RealNumberDisplayFormat<double> real;
        for (const double result : {qQNaN(), qInf()}) {
            real.setValueConverter([result](double, auto) { return result; });
            real.valueFromFullText(QStringLiteral("5"), &ok);
            QVERIFY(!ok);
            QVERIFY(!real.fullTextFromValue(5).isEmpty());
        }

        QElapsedTimer clock;
        clock.start();
        Format slow;
        slow.setSuffixPattern(QRegularExpression(QStringLiteral("(a+)+b")));
        QCOMPARE(echoed(slow, QString(1000000, u'a')), QStringLiteral("-"));
        QCOMPARE(echoed(slow, QString(1000000, u'7')), QStringLiteral("-"));
        QCOMPARE(echoed(slow, QString(1000000, u'0') + u'7'), QStringLiteral("7"));
        QVERIFY2(clock.elapsed() < 30000, "A long text hangs the format");
    }
    void readsAndWritesDates()
    {
        QDateTimeDisplayFormat format;
        const QDateTime time(QDate(2024, 2, 29), QTime(13, 5, 7), Qt::UTC);
        bool ok = false;
        QCOMPARE(format.fullTextFromValue(time),
                 format.locale().toString(time, QLocale::LongFormat));
        format.setDateTimeFormat(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
        format.setSuffix(QStringLiteral("h"));
        QCOMPARE(format.fullTextFromValue(time), QStringLiteral("2024-02-29 13:05:07 h"));
        QCOMPARE(format.valueFromFullText(QStringLiteral(" 2024-02-29 13:05:07h"), &ok).date(),
                 time.date());
        for (const char* bad : {"2023-02-29 13:05:07", "2024-02-29", ""}) {
            QVERIFY(!format.valueFromFullText(QString::fromUtf8(bad), &ok).isValid());
            QVERIFY(!ok);
        }
        format.setPresentTime(time);
        QVERIFY(format.refusalReason(QString()).contains(QStringLiteral("2024-02-29 13:05:07")));
    }
    void readsEveryLongFormat()
    {
        const QTimeZone berlin("Europe/Berlin");
        QDateTimeDisplayFormat format;
        for (const QLocale& locale : QLocale::matchingLocales(
                 QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
            format.setLocale(locale);
            for (const QDateTime& time : {QDateTime(QDate(2026, 7, 21), QTime(11, 30), berlin),
                                          QDateTime(QDate(2026, 11, 8), QTime(23, 5), Qt::UTC)}) {
                format.setPresentTime(time);
                const QString text = format.textFromValue(time);
                bool ok = false;
                QVERIFY2(format.valueFromText(text, &ok) == time && ok,
                         qPrintable(locale.name() + u' ' + text));
            }
        }
    }
    void readsWhatIsTypedOverDates_data()
    {
        Dates row; // present time in Berlin, format (long one of en_US), text, result in UTC
        row("hours only", "2026-11-21 12:30:15", "hh:mm", "7:31", "2026-11-21T06:31:15Z");
        row("no such half", "2026-11-21 12:30:00", "h AP", "13 PM", "");
        row("century", "2026-11-21 12:30:00", "dd.MM.yy", "1.2.27", "2027-02-01T11:30:00Z");
        row("shorter month", "2026-01-31 12:00:00", "MM/yyyy", "02/2026", "2026-02-28T11:00:00Z");
        row("quotes", "2026-01-31 12:00:00", "h 'o''clock'", "5 O'CLOCK", "2026-01-31T04:00:00Z");
        row("fraction", "2026-01-31 12:00:00", "s.z", "1.25", "2026-01-31T11:00:01.250Z");
        row("winter to summer", "2026-01-21 12:00:00", "d.M.yyyy h t", "21.7.2026 12 CET",
            "2026-07-21T10:00:00Z");
        row("its own zone", "2026-01-21 12:00:00", "d.M.yyyy h t", "21.7.2026 12 CEST",
            "2026-07-21T10:00:00Z");
        row("far zone", "2026-01-21 12:00:00", "h t", "12 Asia/Tokyo", "2026-01-21T03:00:00Z");
        row("unknown zone", "2026-01-21 12:00:00", "h t", "12 XYZT", "");
        row("no such hour", "2026-03-29 12:00:00", "hh:mm", "02:30", "");
        row("first of two", "2026-10-25 00:30:00Z", "hh:mm", "02:31", "2026-10-25T00:31:00Z");
        row("second of two", "2026-10-25 01:30:00Z", "hh:mm", "02:31", "2026-10-25T01:31:00Z");
        row("told by the zone", "2026-10-25 01:30:00Z", "hh:mm t", "02:31 CEST",
            "2026-10-25T00:31:00Z");
    }
    void readsWhatIsTypedOverDates()
    {
        const auto& [present, pattern, text, expected] = Dates::fetch();
        const QTimeZone berlin("Europe/Berlin");
        QDateTime time = QDateTime::fromString(present, Qt::ISODate);
        if (time.timeSpec() == Qt::LocalTime)
            time = QDateTime(time.date(), time.time(), berlin);
        QDateTimeDisplayFormat format;
        format.setLocale(QLocale(QLocale::English));
        format.setPresentTime(time.toTimeZone(berlin));
        if (!pattern.isEmpty())
            format.setDateTimeFormat(pattern);
        bool ok = false;
        const QDateTime read = format.valueFromFullText(text, &ok);
        QCOMPARE(ok ? read.toUTC() : QDateTime(),
                 QDateTime::fromString(expected, Qt::ISODateWithMs));
    }
    void readsFrequencies_data()
    {
        Frequencies row; // unit, text, what is written for what was read
        row.add(2, "14225k", "14225 kHz");
        row.add(3, "0.0000001", "-");
        row.add(3, "0.0000010", "0.000001 MHz");
        row.add(3, "14,225 MHz", "-"); // Thousands?
        row.add(3, "5 kHz", "-");
        row.add(4, "9223372036.854775807", "9223372036.854775807 GHz");
        row.add(4, "-9223372036.854775808", "-9223372036.854775808 GHz");
        row.add(4, "9223372036.854775808", "-");
        row.add(2, "1e3", "-");
        row.add(2, "7.074.000", "-"); // Hertz?
        row.add(3, "0.475.500", "-");
        row.add(2, "\uff11\uff14\uff12\uff12\uff15\uff4b", "14225 kHz");
    }
    void readsFrequencies()
    {
        const auto& [unit, text, echo] = Frequencies::fetch();
        FrequencyDisplayFormat format(static_cast<UnitPrefix::ESuffix>(unit));
        QCOMPARE(echoed(format, text), echo);
        format.setMinimumDecimals(3);
        QCOMPARE(format.fullTextFromValue(0).size(), unit == 1 ? 4 : 9);
    }
    void readsTheDecimalPointOfFrequenciesEverywhere()
    {
        FrequencyDisplayFormat megahertz(UnitPrefix::Mega);
        FrequencyDisplayFormat hertz(UnitPrefix::BaseUnit);
        for (FrequencyDisplayFormat* format : {&megahertz, &hertz}) {
            format->setLocale(ungrouped(QStringLiteral("de_DE")));
            format->setUseLocale(true);
        }
        for (const char* text : {"14.225 MHz", "14,225"})
            QCOMPARE(echoed(megahertz, QString::fromLatin1(text)), QStringLiteral("14,225 MHz"));
        QCOMPARE(echoed(megahertz, QStringLiteral("1.014,5")), QStringLiteral("1014,5 MHz"));
        QCOMPARE(echoed(hertz, QStringLiteral("14.225.000")), QStringLiteral("14225000 Hz"));
        QCOMPARE(echoed(hertz, QStringLiteral("14.225")), QStringLiteral("-"));
        FrequencyDisplayFormat kilohertz(UnitPrefix::Kilo);
        kilohertz.setLocale(ungrouped(QStringLiteral("fr_FR")));
        QCOMPARE(echoed(kilohertz, QStringLiteral("7.074")), QStringLiteral("7,074 kHz"));
        for (const char* name : {"ar_EG", "fa_IR", "ckb_IQ", "ps_AF"}) {
            megahertz.setLocale(ungrouped(QString::fromLatin1(name)));
            bool ok = false;
            const QString text = megahertz.fullTextFromValue(-14225000);
            QVERIFY2(megahertz.valueFromFullText(text, &ok) == -14225000 && ok, qPrintable(text));
        }
    }
    void survivesAnyText()
    {
        RandomBytes random("survivesAnyText");
        IntegralNumberDisplayFormat<signed char> small;
        small.setBase(16);
        IntegralNumberDisplayFormat<quint64> large;
        large.setLocale(ungrouped(QStringLiteral("ar_EG")));
        large.setUseLocale(true);
        RealNumberDisplayFormat<double> real;
        RealNumberDisplayFormat<double> german;
        german.setLocale(ungrouped(QStringLiteral("de_DE")));
        german.setFormat('g');
        german.setPrecision(17);
        german.setPrefix(QStringLiteral("x"));
        german.setSuffixPattern(QRegularExpression(QStringLiteral("\\s*[kM]?[hH]*z?")));
        const FrequencyDisplayFormat frequency(UnitPrefix::Mega);
        QDateTimeDisplayFormat date;
        date.setDateTimeFormat(QStringLiteral("d.M.yyyy hh:mm"));
        QByteArray dateSeed("24.12.2024 18:30");
        const int rounds = RandomBytes::rounds(3000);
        for (int i = 0; i < rounds; ++i) {
            const QString text = randomText(random);
            const bool ok = survives(small, text) && survives(large, text) &&
                            survives(real, text) && survives(german, text) &&
                            survives(frequency, text);
            QVERIFY2(ok, qPrintable(text));
            const QString dateText =
                i % 4 == 0 ? QString::fromUtf8(random.mutated(dateSeed)) : QString();
            QVERIFY2(survives(date, dateText), qPrintable(dateText));
        }
    }
};

QTEST_GUILESS_MAIN(tst_DisplayFormats)
#include "tst_displayformats.moc"
