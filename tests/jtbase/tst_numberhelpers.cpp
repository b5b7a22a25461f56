// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <jtbase/numberhelpers.h>

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace {

template <typename T>
std::optional<double> read(const QString& text, const QLocale& locale)
{
    bool ok = false;
    const T value = NumberHelpers::parse<T>(text, locale, &ok);
    return ok ? std::optional(static_cast<double>(value)) : std::nullopt;
}

/// Of types that are smaller than the largest one.
template <typename T>
void checkLimits()
{
    const quint64 high = std::numeric_limits<T>::max();
    const quint64 low = std::is_signed_v<T> ? high + 1 : 0; // without its sign
    for (int base = 2; base <= 36; ++base) {
        const auto text = [base](quint64 value) { return QString::number(value, base); };
        bool ok = false;
        QCOMPARE(NumberHelpers::parse<T>(text(high).toUpper(), &ok, base), T(high));
        QCOMPARE(NumberHelpers::parse<T>(u'-' + text(low), &ok, base), T(low));
        QVERIFY(ok);
        for (const QString& outside : {text(high + 1), text(high) + u'0', u'-' + text(low + 1)}) {
            QCOMPARE(NumberHelpers::parse<T>(outside, &ok, base), T(0));
            QVERIFY2(!ok, qPrintable(outside));
        }
    }
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(u'|');
}

QLocale grouping(const QString& name)
{
    QLocale locale(name);
    locale.setNumberOptions(QLocale::DefaultNumberOptions);
    return locale;
}

} // namespace

class tst_NumberHelpers : public GuardedTest
{
    Q_OBJECT
    using Value = std::optional<double>;
    using Texts = TestRows<QLocale, QString, Value, Value>;

private Q_SLOTS:
    void limitsOfIntegerTypes()
    {
        checkLimits<signed char>();
        checkLimits<unsigned short>();
        checkLimits<qint64>();
        bool ok = false;
        const quint64 highest = std::numeric_limits<quint64>::max();
        QCOMPARE(NumberHelpers::parse<quint64>(QString::number(highest, 7), &ok, 7), highest);
        for (const QString& text : words("18446744073709551616|99999999999999999999|-1")) {
            NumberHelpers::parse<quint64>(text, &ok);
            QVERIFY2(!ok, qPrintable(text));
        }
        for (int base : {-10, 0, 1, 37})
            QCOMPARE(NumberHelpers::parse<int>(u"1", nullptr, base), 0);
        QCOMPARE(NumberHelpers::parse<double>(u"1", nullptr, 16), 0.0);
    }
    void texts_data()
    {
        Texts row;
        const Value none;
        const QLocale german = grouping(QStringLiteral("de_DE"));
        const QLocale french = grouping(QStringLiteral("fr_FR"));
        const QLocale hindi = grouping(QStringLiteral("hi_IN"));
        const QLocale arabic = grouping(QStringLiteral("ar_EG"));
        row.add(german, " \u00A0-12\t", -12, -12);
        row.add(german, "\u22127", -7, -7);
        row.add(german, "\uFF0B\uFF11\uFF12", 12, 12);
        row.add(german, "1.234.567", 1234567, 1234567);
        row.add(german, "1.234,5", none, 1234.5);
        row.add(german, "-,5e+2", none, -50);
        row.add(hindi, "12,34,567", 1234567, 1234567);
        row.add(hindi, "1,234,567", none, none);
        row.add(french, "12 345,5", none, 12345.5);
        row.add(french, "12\u202F345", 12345, 12345);
        row.add(french, "12\u00A0345", 12345, 12345);
        row.add(grouping(QStringLiteral("de_CH")), "1'234", 1234, 1234);
        row.add(grouping(QStringLiteral("es_ES")), "1.234", 1234, 1234);
        row.add(arabic, "\u0661\u066C\u0662\u0663\u0664\u066B\u0665", none, 1234.5);
        row.add(arabic, "1.5", none, 1.5);
        row.add(german, QString(QChar(0xD835)), none, none);
        for (const QString& text : words("|-|+-5|--5|- 5|5-|0x10|1 2|inf|nan|1e|e5|1.23|1.2345|"
                                         ".123|1.|1..234|1.234.5|1,5,6|1e1,5|12345.678|,|1e400|"
                                         "1e-400|1,2.345|1,e5.0|1.234.,5"))
            row.add(german, text, none, none);
        QLocale strict = german;
        strict.setNumberOptions(QLocale::RejectGroupSeparator);
        row.add(strict, "1.234", none, none);
    }
    void texts()
    {
        const auto& [locale, text, integer, real] = Texts::fetch();
        QCOMPARE(read<int>(text, locale), integer);
        QCOMPARE(read<double>(text, locale), real);
    }
    void everyLocaleReadsWhatItWrites()
    {
        const QList<QLocale> locales = QLocale::matchingLocales(
            QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
        QVERIFY(locales.size() > 100);
        for (QLocale locale : locales) {
            locale.setNumberOptions(QLocale::DefaultNumberOptions);
            for (qint64 value : {Q_INT64_C(-4321), std::numeric_limits<qint64>::min()}) {
                const QString text = locale.toString(value);
                QVERIFY2(NumberHelpers::parse<qint64>(text, locale) == value, qPrintable(text));
            }
            for (double value : {-0.5, 1234567.875, 1.25e-30}) {
                for (char format : {'f', 'e'}) {
                    const QString text = locale.toString(value, format, 40);
                    QVERIFY2(read<double>(text, locale) == value, qPrintable(locale.name() + text));
                }
            }
        }
    }
    void randomTextsAgainstReference()
    {
        RandomBytes random("numbers");
        const QRegularExpression integer(QStringLiteral("^[+-]?[0-9]+$"));
        const QRegularExpression real(
            QStringLiteral("^[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)(e[+-]?[0-9]+)?$"));
        const QString alphabet = QStringLiteral("00123456789999.e+-, x");
        for (int round = RandomBytes::rounds(3000); round > 0; --round) {
            QString text;
            for (int length = random.below(24); length > 0; --length)
                text += alphabet.at(random.below(static_cast<int>(alphabet.size())));
            const QString trimmed = text.trimmed();
            bool ok = false;
            bool expectedOk = false;
            const qint64 expected = trimmed.toLongLong(&expectedOk);
            expectedOk = expectedOk && integer.match(trimmed).hasMatch();
            QCOMPARE(NumberHelpers::parse<qint64>(text, &ok), expectedOk ? expected : 0);
            QCOMPARE(ok, expectedOk);
            const double expectedReal = trimmed.toDouble(&expectedOk);
            expectedOk = expectedOk && real.match(trimmed).hasMatch();
            QCOMPARE(NumberHelpers::parse<double>(text, &ok), expectedOk ? expectedReal : 0.0);
            QVERIFY2(ok == expectedOk, qPrintable(text));
            const double decimal = Trov::toDoubleEx(text, &ok);
            QVERIFY2(!expectedOk || (ok && decimal == expectedReal), qPrintable(text));

            const double value = std::bit_cast<double>(random.engine()());
            if (std::isfinite(value))
                QCOMPARE(Trov::toDoubleEx(QString::number(value, 'g', 17)), value);
        }
    }
    void decimalTexts()
    {
        const std::pair<const char*, double> texts[] = {
            {" 145,5 ", 145.5},       {"1,234", 1.234},
            {"1,234.5", 1234.5},      {"-1.234.567,25e-2", -12345.6725},
            {"1,234,567", 1234567},   {"\u2212\uFF15\uFF0C\uFF15", -5.5},
            {"0e-999999999999", 0.0},
        };
        bool ok = false;
        for (const auto& [text, expected] : texts) {
            QCOMPARE(Trov::toDoubleEx(QString::fromUtf8(text), &ok), expected);
            QVERIFY2(ok, text);
        }
        for (const QString& text : words("|x|+-1|1.2,3|1,23.4|1,,234|1,2345,678|1.e,5|1e1.2.3|,,|"
                                         "1,234,|1,234.5,6|inf|nan|1e999|1e-999|12 5|1-1|1,234-.5|"
                                         "-,234,567|1e1,234,567")) {
            QCOMPARE(Trov::toDoubleEx(text, &ok), 0.0);
            QVERIFY2(!ok, qPrintable(text));
        }
    }
    void hugeTexts()
    {
        constexpr qsizetype size = 1 << 20;
        const QString zeros(size, QLatin1Char('0'));
        QCOMPARE(NumberHelpers::parse<signed char>(zeros + u'7'), 7);
        QCOMPARE(NumberHelpers::parse<double>(zeros + u'7' + u'.' + zeros), 7.0);
        QCOMPARE(Trov::toDoubleEx(zeros + u'7' + u',' + zeros), 7.0);
        for (const QString& text : {QString(size, u'9'), QString(size, u','), QString(size, u' '),
                                    QStringLiteral("0.") + zeros + u'1'}) {
            bool ok = true;
            Trov::toDoubleEx(text, &ok);
            QVERIFY(!ok && !read<double>(text, QLocale()) && !read<quint64>(text, QLocale()));
        }
    }
};

QTEST_GUILESS_MAIN(tst_NumberHelpers)
#include "tst_numberhelpers.moc"
