// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/frequencies/suffixeddouble.h>
#include <guibase/services/guibase.h>

#include <valueframework/tree.h>
#include <valueframework/valueselection.h>

#include <cfloat>
#include <cmath>
#include <limits>

using enum UnitPrefix::ESuffix;
using ESuffix = SuffixedDouble::ESuffix;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// A frequency with a table of its own that follows no unit.
class Frequency : public SuffixedDouble
{
public:
    Frequency(ESuffix resolution, ESuffix suffix, int factor = 1000)
        : SuffixedDouble(QStringLiteral("Hz"), factor, true)
    {
        SetResolution(resolution);
        ConnectToGuiCentral(false, suffix);
    }
};

ESuffix randomUnit(RandomBytes& random)
{
    return static_cast<ESuffix>(1 + random.below(4));
}

} // namespace

class tst_SuffixedDouble : public GuardedTest
{
    Q_OBJECT
    using Formats = TestRows<ESuffix, ESuffix, double, QString, QString, QString>;
    using Typed = TestRows<QString, ESuffix, ESuffix, double>;

private Q_SLOTS:
    void formats_data()
    {
        // Resolution, unit, value; the shortest text; which texts tell the value exactly (s: the
        // short one, l: the long one); GetString|GetShortString|GetExtra...|GetSignificant...
        Formats row;
        // clang-format off
        row.add(BaseUnit, Mega, 12.5e6, "12.5 MHz", "sl", "12.500000 MHz|12.500  MHz|12.500000 MHz|12.500 MHz");
        row.add(BaseUnit, Mega, 1234567.125, "1234567 Hz", "", "1.234567 MHz|1.235  MHz|1.234567125 MHz|1.234567 MHz");
        row.add(BaseUnit, Giga, 100, "100 Hz", "l", "0.000000100 GHz|0.000000  GHz|0.000000100 GHz|0.0000001 GHz");
        row.add(Kilo, Mega, 12.6e6, "12.6 MHz", "l", "12.600 MHz|13  MHz|12.600 MHz|12.6 MHz");
        row.add(Kilo, BaseUnit, 12345, "12 kHz", "", "12 kHz|12  kHz|12.345 kHz|12 kHz");
        row.add(BaseUnit, Kilo, 0, "0 Hz", "sl", "0.000 kHz|0  kHz|0.000 kHz|0 kHz");
        row.add(BaseUnit, Kilo, -1600, "-1.6 kHz", "l", "-1.600 kHz|-2  kHz|-1.600 kHz|-1.6 kHz");
        row.add(BaseUnit, Mega, notANumber, "nan Hz", "", "nan MHz|nan  MHz|nan MHz|nan MHz");
        // clang-format on
    }
    void formats()
    {
        const auto& [resolution, suffix, value, shortest, exact, texts] = Formats::fetch();
        const QStringList expected = texts.split(u'|');
        Frequency frequency(resolution, suffix);
        QCOMPARE(frequency.GetShortestString(value), shortest);
        QCOMPARE(frequency.GetString(), expected.at(0));
        QCOMPARE(frequency.GetShortString(value), expected.at(1));
        QCOMPARE(frequency.GetExtraString(), expected.at(2));
        QCOMPARE(frequency.GetSignificantString(), expected.at(3));
        GuiBase::Instance().SetShowFrequencyInHz(true);
        QCOMPARE(frequency.GetDisplayString() + frequency.GetSuffix(), expected.at(0));
        QCOMPARE(frequency.IsShortSuffixedOk(value), exact.contains(u's'));
        QCOMPARE(frequency.IsLongSuffixedOk(value), exact.contains(u'l'));
        QCOMPARE(frequency.IsLongSuffixedOk(SuffixedDouble::NoValue), exact.contains(u'l'));

        QCOMPARE(frequency.GetShortestString(DBL_MAX), QStringLiteral("MAXDOUBLE"));
        QCOMPARE(frequency.GetShortestString(), QStringLiteral("MAXDOUBLE"));
        QCOMPARE(frequency.GetShortestString(-FLT_MAX), QStringLiteral("MINFLOAT"));
    }
    void typedText_data()
    {
        Typed row; // text, resolution, unit it is held in, value
        row.add("12.5 M", BaseUnit, BaseUnit, 12.5e6);
        row.add("7", BaseUnit, BaseUnit, 7e6);
        row.add(" 7,25kHz ", BaseUnit, BaseUnit, 7250);
        row.add("5h", Kilo, BaseUnit, 5000);
        row.add("5 Hz", Kilo, BaseUnit, 5000);
        row.add("1e3", BaseUnit, BaseUnit, 0);
        row.add("5 mg", BaseUnit, BaseUnit, 5e6);
        row.add("3 GHz kHz", BaseUnit, BaseUnit, 3e9);
        row.add("2 MHz 3", BaseUnit, BaseUnit, 0);
        row.add("5 Hz k", BaseUnit, BaseUnit, 5e3);
        // A unit that is completed gives internal units, " Hz" keeps the letter from that.
        row.add("5 k", BaseUnit, Kilo, 0.005);
        row.add("5 Hz k", BaseUnit, Kilo, 5);
        row.add("-9999.765 Hz", BaseUnit, BaseUnit, 42);
    }
    void typedText()
    {
        const auto& [text, resolution, internal, expected] = Typed::fetch();
        Frequency frequency(resolution, Mega);
        frequency.SetInternalSuffix(internal);
        frequency.SetValue(42);
        frequency.SetFrequencyString(text);
        frequency.SetInternalSuffix(BaseUnit);
        QCOMPARE(frequency.GetValue(), expected);
        QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("MHz"));
    }
    /// Whatever is typed gives some value.
    void survivesTypedText()
    {
        const QStringList pieces =
            QStringLiteral("k|M|g| Hz|MHz|kHz|GHz|12.5|7|0|.|,|-|+|e|x|\u2212|\u00e4| ")
                .split(u'|');
        RandomBytes random("typed frequencies");
        for (int i = RandomBytes::rounds(2000); i > 0; --i) {
            Frequency frequency(random.below(2) == 0 ? BaseUnit : Kilo, randomUnit(random));
            frequency.SetInternalSuffix(randomUnit(random));
            QString text;
            for (int length = random.below(12); length > 0; --length)
                text += pieces.at(random.below(static_cast<int>(pieces.size())));
            frequency.SetFrequencyString(text);
            QVERIFY2(std::isfinite(frequency.GetValue()), qPrintable(text));
        }
    }
    void writtenTextIsReadBack()
    {
        RandomBytes random("frequencies written and read");
        for (int i = RandomBytes::rounds(500); i > 0; --i) {
            Frequency frequency(random.below(2) == 0 ? BaseUnit : Kilo, randomUnit(random));
            const double value = random.below(1'000'000'000) * std::pow(10.0, random.below(8) - 4);
            const QString text = frequency.GetString(value);
            const double unit = frequency.GetValue(QStringLiteral("1"));
            const double halfStep = 0.5 * unit * std::pow(10.0, -frequency.GetDotPosition());
            frequency.SetFrequencyString(text);
            QVERIFY2(std::abs(frequency.GetValue() - value) <= halfStep * 1.001 + value * 1e-15,
                     qPrintable(text));
            QCOMPARE(frequency.GetString(), text);
        }
    }
    /// A random walk, side by side with an integer.
    void editsDigits()
    {
        Frequency frequency(BaseUnit, Mega);
        int offset = 0;
        qint64 value = 0;
        int current = 0;
        const auto power = [](int exponent) { return qRound64(std::pow(10.0, exponent)); };
        RandomBytes random("digits");
        for (int i = RandomBytes::rounds(2000); i > 0; --i) {
            if (random.below(50) == 0) {
                offset = 3 - offset;
                frequency.SetResolution(offset == 3 ? Kilo : BaseUnit);
                frequency.SetSuffix(randomUnit(random));
            }
            const int index = random.below(8) - 1;
            const int operation = random.below(5);
            if (operation < 3 && index != -1)
                current = offset + index;
            if (operation == 0) {
                frequency.increment(index);
                value += power(current);
            } else if (operation == 1) {
                frequency.decrement(index);
                while (power(current) > value && current > offset)
                    --current;
                value -= power(current) > value ? 0 : power(current);
            } else if (operation == 2) {
                const int digit = random.below(10);
                frequency.SetCharAt(QChar(u'0' + digit), index);
                value += (digit - value / power(current) % 10) * power(current);
            } else {
                const bool isUp = operation == 3;
                const bool moves = isUp ? current < 15 - offset - 2 : current - offset >= 1;
                QCOMPARE(isUp ? frequency.incrementIndex() : frequency.decrementIndex(), moves);
                current += moves ? (isUp ? 1 : -1) : 0;
            }
            QCOMPARE(frequency.GetValue(), double(value));
            QCOMPARE(frequency.GetCurrentIndex(), current - offset);
            QCOMPARE(frequency.GetPureNumbers(), QString::number(value).rightJustified(15, u'0'));
            for (int place = offset + 1; place <= 15; ++place) {
                const bool blank =
                    value < power(place - 1) && place > offset + 1 + frequency.GetDotPosition();
                const auto digit = static_cast<char16_t>(u'0' + value / power(place - 1) % 10);
                QCOMPARE(frequency.GetCharAt(place - offset), blank ? QChar(u' ') : QChar(digit));
            }
        }
    }
    void digitsOutsideTheNumber()
    {
        constexpr int extreme = std::numeric_limits<int>::max();
        Frequency frequency(Kilo, Mega);
        frequency.SetValue(123456.75);
        for (const int index : {extreme, -extreme - 1, 100, -4}) {
            QVERIFY(frequency.GetCharAt(index).isNull());
            frequency.SetCharAt(u'5', index);
            frequency.incrementIndex();
            QVERIFY(frequency.GetRealSelectPosition(index) >= 0);
            QCOMPARE(frequency.GetValue(), 123456.75);
        }
        frequency.SetCharAt(u'x', 0);
        QCOMPARE(frequency.GetValue(), 0.0);

        for (const double value : {5.0, -5.0, notANumber, -infinity, DBL_MAX}) {
            for (const int index : {extreme, 300, 0, -extreme}) {
                frequency.SetValue(value);
                frequency.decrement(index);
                QVERIFY(!(frequency.GetValue() < std::min(value, 0.0)));
                frequency.increment(index);
                frequency.GetCharAt(1);
            }
        }
        // In "12.500 MHz" digit 0 is the last one, and digit 3 stands before the point.
        frequency.SetValue(12.5e6);
        for (const auto& [index, position] : {std::pair(0, 5), {2, 3}, {3, 1}, {4, 0}, {9, 0}})
            QCOMPARE(frequency.GetRealSelectPosition(index), position);
    }
    void sharesTable()
    {
        const QString hertz = QStringLiteral("Hz");
        SuffixedDouble first(hertz, 1000, false);
        SuffixedDouble second(hertz, 1000, false);
        SuffixedDouble separate(hertz, 1000, true);
        first.SetStringSuffix(QStringLiteral("Bq"));
        first.SetFactor(100);
        QCOMPARE(second.GetString(2.5e4), QStringLiteral("2.500000 MBq"));
        QCOMPARE(separate.GetString(2.5e4), QStringLiteral("0.025000 MHz"));
    }
    void followsApplicationUnit()
    {
        GuiBase& guiBase = GuiBase::Instance();
        guiBase.SetFrequencyUnit(Giga);
        SuffixedDouble frequency(QStringLiteral("Hz"), 1000, true);
        for (const ESuffix unit : {BaseUnit, Kilo, Mega}) {
            guiBase.SetFrequencyUnit(unit);
            QCOMPARE(frequency.GetPureSuffix(),
                     guiBase.GetFrequencyUnit()->GetCurrentItem()->GetName());
        }
        frequency.ConnectToGuiCentral(false, Giga);
        guiBase.SetFrequencyUnit(Mega);
        QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("GHz"));
        frequency.ConnectToGuiCentral(true);
        QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("MHz"));
    }
    void forgetsDeadUnit()
    {
        const QString path = QStringLiteral("receiver/unit");
        const ValueSelection* applicationUnit = GuiBase::Instance().GetFrequencyUnit();
        const int observers = applicationUnit->GetObserverCount();
        SuffixedDouble frequency(QStringLiteral("Hz"), 1000, true);
        {
            ValueSelection unit(QStringLiteral("unit"));
            QVERIFY(Tree::Instance().Add(QStringLiteral("receiver"), &unit));
            QVERIFY(frequency.SetSuffix_ValuePath(path));
            QCOMPARE(applicationUnit->GetObserverCount(), observers);
            QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("MHz"));
            unit.SetItems({SelectionItem(QStringLiteral("in kHz"), false, 1),
                           SelectionItem(QStringLiteral("furlongs"), false, 2)});
            unit.SetKey(1);
            unit.SetKey(2);
            QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("kHz"));
        }
        frequency.SetSuffixFromValue();
        QVERIFY(!frequency.SetSuffix_ValuePath(path));
        QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("kHz"));
    }
    void survivesOddSettings()
    {
        Frequency wrapping(BaseUnit, Giga, 2000);
        QCOMPARE(wrapping.GetValue(QStringLiteral("1")), double(8'000'000'000 - (qint64(1) << 33)));
        for (const int factor :
             {0, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            wrapping.SetFactor(factor);
            wrapping.GetShortestString(1e6);
            wrapping.SetFrequencyString(QStringLiteral("3 k"));
        }
        Frequency frequency(BaseUnit, Mega);
        frequency.SetSuffix(NoSuffix);
        frequency.SetSuffix(static_cast<ESuffix>(5));
        frequency.SetInternalSuffix(static_cast<ESuffix>(-1));
        QCOMPARE(frequency.GetString(1e6), QStringLiteral("1.000000 MHz"));
        for (const auto& [length, size] : {std::pair(-7, 1), {0, 1}, {3, 3}, {INT_MAX, 4096}}) {
            frequency.SetPureNumbersLength(length);
            QCOMPARE(frequency.GetPureNumbers(5).size(), size);
            frequency.SetCurrentIndex2Max();
            frequency.decrement(-1);
        }
    }

private:
    void prepare() override
    {
        GuiBase::Instance().SetFrequencyUnit(Mega);
        GuiBase::Instance().SetFrequencyResolution(BaseUnit);
        GuiBase::Instance().SetShowFrequencyInHz(false);
    }
};

QTEST_MAIN(tst_SuffixedDouble)
#include "tst_suffixeddouble.moc"
