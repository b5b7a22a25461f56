// SPDX-License-Identifier: MIT
#include "support/randombytes.h"
#include "support/testguard.h"

#include <jtbase/numberhelpers.h>

#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <limits>
#include <memory>

namespace {

template <typename T>
std::optional<T> read(const QString& text, const QLocale& locale)
{
    bool ok = false;
    const T value = NumberHelpers::parse<T>(text, locale, &ok);
    return ok ? std::optional<T>(value) : std::nullopt;
}

/// The text of a magnitude greater by one, by hand as no type holds all of them.
QString incremented(QString digits, int base)
{
    for (qsizetype i = digits.size(); i-- > 0;) {
        const int digit = QStringView(digits).sliced(i, 1).toInt(nullptr, 36) + 1;
        digits[i] = QString::number(digit % base, 36).front();
        if (digit < base)
            return digits;
    }
    return QLatin1Char('1') + digits;
}

template <typename T>
void checkLimits()
{
    constexpr T highest = std::numeric_limits<T>::max();
    constexpr T lowest = std::numeric_limits<T>::min();
    for (int base = 2; base <= 36; ++base) {
        const QString high = QString::number(static_cast<quint64>(highest), base);
        const QString low = lowest < 0 ? incremented(high, base) : QStringLiteral("0");
        const QString minus(QLatin1Char('-'));
        bool ok = false;
        QCOMPARE(NumberHelpers::parse<T>(high.toUpper(), &ok, base), highest);
        QVERIFY(ok);
        QCOMPARE(NumberHelpers::parse<T>(minus + low, &ok, base), lowest);
        QVERIFY(ok);
        const QStringList outside = {incremented(high, base), high + high.back(),
                                     minus + incremented(low, base)};
        for (const QString& text : outside) {
            QCOMPARE(NumberHelpers::parse<T>(text, &ok, base), T(0));
            QVERIFY2(!ok, qPrintable(text));
        }
    }
}

QLocale grouping(const QString& name)
{
    QLocale locale(name);
    locale.setNumberOptions(QLocale::DefaultNumberOptions);
    return locale;
}

} // namespace

class NumberHelpersTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_guard = std::make_unique<TestGuard>(); }
    void cleanup()
    {
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }
    void limitsOfEveryIntegerType()
    {
        checkLimits<signed char>();
        checkLimits<unsigned char>();
        checkLimits<short>();
        checkLimits<unsigned short>();
        checkLimits<int>();
        checkLimits<unsigned int>();
        checkLimits<qint64>();
        checkLimits<quint64>();
    }
    void basesOutsideTheRange()
    {
        for (int base : {-10, 0, 1, 37}) {
            bool ok = true;
            QCOMPARE(NumberHelpers::parse<int>(u"1", &ok, base), 0);
            QVERIFY(!ok);
        }
        bool ok = true;
        QCOMPARE(NumberHelpers::parse<double>(u"1", &ok, 16), 0.0);
        QVERIFY(!ok);
        QCOMPARE(NumberHelpers::parse<int>(u"12", nullptr), 12);
    }
    void texts_data()
    {
        using Value = std::optional<double>;
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Value>("integer");
        QTest::addColumn<Value>("real");

        const auto row = [](const char* locale, const QString& text, Value integer, Value real) {
            QTest::addRow("%s %s", locale, qPrintable(text))
                << grouping(QString::fromLatin1(locale)) << text << integer << real;
        };
        const Value none;
        const QString german = QStringLiteral("de_DE");
        row("de_DE", QStringLiteral(" \u00A0-12\t"), -12, -12);
        row("de_DE", QStringLiteral("\u22127"), -7, -7);
        row("de_DE", QStringLiteral("\uFF0B\uFF11\uFF12"), 12, 12);
        row("de_DE", QStringLiteral("1.234.567"), 1234567, 1234567);
        row("de_DE", QStringLiteral("1.234,5"), none, 1234.5);
        row("de_DE", QStringLiteral("-,5e+2"), none, -50);
        row("de_DE", QStringLiteral("5,"), none, 5);
        row("hi_IN", QStringLiteral("12,34,567"), 1234567, 1234567);
        row("hi_IN", QStringLiteral("1,234,567"), none, none);
        row("fr_FR", QStringLiteral("12 345,5"), none, 12345.5);
        row("fr_FR", QStringLiteral("12\u202F345"), 12345, 12345);
        row("fr_FR", QStringLiteral("12\u00A0345"), 12345, 12345);
        row("fr_FR", QStringLiteral("12 34"), none, none);
        row("de_CH", QStringLiteral("1'234"), 1234, 1234);
        row("es_ES", QStringLiteral("1.234"), 1234, 1234);
        row("ar_EG", QStringLiteral("\u0661\u066C\u0662\u0663\u0664"), 1234, 1234);
        row("ar_EG", QStringLiteral("\u0661\u066B\u0665"), none, 1.5);
        row("ar_EG", QStringLiteral("1.5"), none, 1.5);
        const char* garbage[] = {"",        "-",      "+-5",       "--5", "- 5",    "5-",
                                 "0x10",    "1 2",    "inf",       "nan", "1e",     "e5",
                                 "1.23",    "1.2345", ".123",      "1.",  "1..234", "1.234.5",
                                 "1,5,6",   "1e1,5",  "12345.678", ",",   "1e400",  "1e-400",
                                 "1,2.345", "1,e5.0", "1.234.,5"};
        for (const char* text : garbage)
            row("de_DE", QString::fromLatin1(text), none, none);
        QTest::newRow("surrogate alone")
            << QLocale(german) << QString(QChar(0xD835)) << none << none;

        QLocale strict = grouping(german);
        strict.setNumberOptions(QLocale::RejectGroupSeparator);
        QTest::newRow("group separators rejected")
            << strict << QStringLiteral("1.234") << none << none;
    }
    void texts()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, text);
        QFETCH(std::optional<double>, integer);
        QFETCH(std::optional<double>, real);
        const std::optional<int> readInteger = read<int>(text, locale);
        QCOMPARE(readInteger.has_value(), integer.has_value());
        QCOMPARE(readInteger.value_or(0), static_cast<int>(integer.value_or(0)));
        QCOMPARE(read<double>(text, locale), real);
    }
    void everyLocaleReadsWhatItWrites()
    {
        const QList<QLocale> locales = QLocale::matchingLocales(
            QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
        QVERIFY(locales.size() > 100);
        for (QLocale locale : locales) {
            locale.setNumberOptions(QLocale::DefaultNumberOptions);
            for (qint64 value :
                 {Q_INT64_C(0), Q_INT64_C(-4321), std::numeric_limits<qint64>::min()}) {
                QVERIFY2(read<qint64>(locale.toString(value), locale) == value,
                         qPrintable(locale.name() + locale.toString(value)));
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
            if (!std::isfinite(value))
                continue;
            const QString exact = QString::number(value, 'g', 17);
            QCOMPARE(NumberHelpers::parse<double>(exact), value);
            QCOMPARE(Trov::toDoubleEx(exact), value);
        }
    }
    void decimalTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<double>>("expected");
        const auto row = [](const QString& text, std::optional<double> expected) {
            QTest::addRow("<%s>", qPrintable(text)) << text << expected;
        };
        row(QStringLiteral("  145.5 "), 145.5);
        row(QStringLiteral("145,5"), 145.5);
        row(QStringLiteral("1,234"), 1.234);
        row(QStringLiteral("1,234.5"), 1234.5);
        row(QStringLiteral("-1.234.567,25e-2"), -12345.6725);
        row(QStringLiteral("1,234,567"), 1234567);
        row(QStringLiteral("+.5E3"), 500);
        row(QStringLiteral("\u2212\uFF15\uFF0C\uFF15"), -5.5);
        row(QStringLiteral("4.9406564584124654e-324"), 4.9406564584124654e-324);
        row(QStringLiteral("1.7976931348623157e308"), std::numeric_limits<double>::max());
        row(QStringLiteral("0e-999999999999"), 0.0);
        const char* garbage[] = {
            "",      "x",       "+-1",  "1.2,3",  "1,23.4",    "1,,234",    "1,2345,678",
            "1.e,5", "1e1.2.3", ",,",   "1,234,", "1,234.5,6", "inf",       "nan",
            "1e999", "1e-999",  "12 5", "1-1",    "1,234-.5",  "-,234,567", "1e1,234,567"};
        for (const char* text : garbage)
            row(QString::fromLatin1(text), std::nullopt);
    }
    void decimalTexts()
    {
        QFETCH(QString, text);
        QFETCH(std::optional<double>, expected);
        bool ok = false;
        const double value = Trov::toDoubleEx(text, &ok);
        QCOMPARE(ok, expected.has_value());
        QCOMPARE(value, expected.value_or(0.0));
        QCOMPARE(Trov::toDoubleEx(text), value);
    }
    void hugeTexts()
    {
        constexpr qsizetype size = 1 << 20;
        const QString zeros(size, QLatin1Char('0'));
        bool ok = false;
        QCOMPARE(NumberHelpers::parse<signed char>(zeros + QStringLiteral("7"), &ok), 7);
        QCOMPARE(NumberHelpers::parse<double>(zeros + QStringLiteral("7.") + zeros, &ok), 7.0);
        QCOMPARE(Trov::toDoubleEx(zeros + QStringLiteral("7,") + zeros, &ok), 7.0);
        QVERIFY(ok);
        const QStringList refused = {
            QString(size, QLatin1Char('9')), QString(size, QLatin1Char(',')),
            QStringLiteral("0.") + zeros + QLatin1Char('1'), QString(size, QLatin1Char('-')),
            QString(size, QLatin1Char(' '))};
        for (const QString& text : refused) {
            Trov::toDoubleEx(text, &ok);
            QVERIFY(!ok);
            NumberHelpers::parse<double>(text, QLocale(), &ok);
            QVERIFY(!ok);
            NumberHelpers::parse<quint64>(text, QLocale(), &ok);
            QVERIFY(!ok);
        }
    }

private:
    std::unique_ptr<TestGuard> m_guard;
};

QTEST_GUILESS_MAIN(NumberHelpersTest)
#include "tst_numberhelpers.moc"
