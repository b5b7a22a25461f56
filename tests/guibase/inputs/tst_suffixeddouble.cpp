// SPDX-License-Identifier: MIT
#include <guibase/inputs/suffixeddouble.h>

#include "support/randombytes.h"
#include "support/testguard.h"

#include <guibase/services/guibase.h>
#include <jtbase/numberhelpers.h>
#include <valueframework/tree.h>
#include <valueframework/valueselection.h>

#include <QRegularExpression>
#include <QTest>

#include <cfloat>
#include <cmath>
#include <limits>

using enum UnitPrefix::ESuffix;
using ESuffix = SuffixedDouble::ESuffix;

Q_DECLARE_METATYPE(ESuffix)

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

/// Reads typed text in the plainest way, one step after the other.
double storedByPlainReader(QString text, ESuffix current, ESuffix internal, ESuffix resolution)
{
    const QStringList units = QStringLiteral("|Hz|kHz|MHz|GHz").split(u'|');
    const auto factor = [](ESuffix suffix) { return std::pow(1000.0, suffix - 1); };
    const std::pair<QChar, ESuffix> letters[] = {
        {u'h', resolution == Kilo ? Kilo : BaseUnit}, {u'g', Giga}, {u'm', Mega}, {u'k', Kilo}};
    for (const auto& [letter, unit] : letters)
        current = text.contains(letter, Qt::CaseInsensitive) ? unit : current;
    if (!text.contains(QStringLiteral(" Hz")))
        text += u' ' + units.at(current);

    ESuffix found = NoSuffix;
    for (const ESuffix unit : {Giga, Mega, Kilo}) {
        const qsizetype position = text.indexOf(units.at(unit));
        if (found == NoSuffix && position >= 0) {
            text.remove(position, 3);
            found = unit;
        }
    }
    static const QRegularExpression anyLetter(QStringLiteral("[a-zA-Z]"));
    text.replace(anyLetter, QStringLiteral(" "));
    const double number = Trov::toDoubleEx(text.trimmed());
    const double parsed =
        found == NoSuffix ? number * factor(current) : number * factor(found) / factor(internal);
    return parsed / factor(internal);
}

} // namespace

class TestSuffixedDouble : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard = std::make_unique<TestGuard>();
        GuiBase::Instance().SetFrequencyUnit(Mega);
        GuiBase::Instance().SetFrequencyResolution(BaseUnit);
        GuiBase::Instance().SetShowFrequencyInHz(false);
    }
    void cleanup()
    {
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }

    void formats_data();
    void formats();
    void writesNumbersAsPaddedAndTrimmed();
    void typedText_data();
    void typedText();
    void readsTypedTextAsPlainReader();
    void heldInOtherUnit();
    void writtenTextIsReadBack();
    void editsDigits();
    void digitsOutsideTheNumber();
    void sharesTable();
    void followsApplicationUnit();
    void forgetsDeadUnit();
    void survivesOddSettings();

private:
    std::unique_ptr<TestGuard> m_guard;
};

void TestSuffixedDouble::formats_data()
{
    QTest::addColumn<ESuffix>("resolution");
    QTest::addColumn<ESuffix>("suffix");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>(
        "exact"); // s: the short text tells the value exactly, l: the long one
    QTest::addColumn<QString>("texts"); // GetString|GetShort...|GetExtra...|GetSignificant...

    const auto row = [](const char* shortest, ESuffix resolution, ESuffix suffix, double value,
                        const char* exact, const char* texts) {
        QTest::newRow(shortest) << resolution << suffix << value << QString::fromLatin1(exact)
                                << QString::fromLatin1(texts);
    };
    // clang-format off
    row("12.5 MHz", BaseUnit, Mega, 12.5e6, "sl", "12.500000 MHz|12.500  MHz|12.500000 MHz|12.500 MHz");
    row("1234567 Hz", BaseUnit, Mega, 1234567.125, "", "1.234567 MHz|1.235  MHz|1.234567125 MHz|1.234567 MHz");
    row("3 Hz", BaseUnit, BaseUnit, 3, "sl", "3 Hz|3  Hz|3. Hz|3 Hz");
    row("100 Hz", BaseUnit, Giga, 100, "l", "0.000000100 GHz|0.000000  GHz|0.000000100 GHz|0.0000001 GHz");
    row("12.6 MHz", Kilo, Mega, 12.6e6, "l", "12.600 MHz|13  MHz|12.600 MHz|12.6 MHz");
    row("1.2 GHz", Kilo, Giga, 1.2e9, "sl", "1.200000 GHz|1.200  GHz|1.200000 GHz|1.200 GHz");
    row("12 kHz", Kilo, BaseUnit, 12345, "", "12 kHz|12  kHz|12.345 kHz|12 kHz");
    row("0 Hz", BaseUnit, Kilo, 0, "sl", "0.000 kHz|0  kHz|0.000 kHz|0 kHz");
    row("-1.6 kHz", BaseUnit, Kilo, -1600, "l", "-1.600 kHz|-2  kHz|-1.600 kHz|-1.6 kHz");
    row("nan Hz", BaseUnit, Mega, notANumber, "", "nan MHz|nan  MHz|nan MHz|nan MHz");
    // clang-format on
}

void TestSuffixedDouble::formats()
{
    QFETCH(ESuffix, resolution);
    QFETCH(ESuffix, suffix);
    QFETCH(double, value);
    QFETCH(QString, exact);
    QFETCH(QString, texts);
    const QStringList expected = texts.split(u'|');
    Frequency frequency(resolution, suffix);
    QCOMPARE(frequency.GetShortestString(value), QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(frequency.GetString(), expected.at(0));
    QCOMPARE(frequency.GetShortString(value), expected.at(1));
    QCOMPARE(frequency.GetExtraString(), expected.at(2));
    QCOMPARE(frequency.GetSignificantString(), expected.at(3));
    QCOMPARE(frequency.GetDisplayString() + frequency.GetSuffix(), expected.at(3));
    GuiBase::Instance().SetShowFrequencyInHz(true);
    QCOMPARE(frequency.GetDisplayString() + frequency.GetSuffix(), expected.at(0));
    QCOMPARE(frequency.IsShortSuffixedOk(), exact.contains(u's'));
    QCOMPARE(frequency.IsLongSuffixedOk(value), exact.contains(u'l'));

    QCOMPARE(frequency.GetShortestString(DBL_MAX), QStringLiteral("MAXDOUBLE"));
    QCOMPARE(frequency.GetShortestString(-FLT_MAX), QStringLiteral("MINFLOAT"));
}

/// Rounding, signs and special numbers are those of the toolkit's own padded formatting.
void TestSuffixedDouble::writesNumbersAsPaddedAndTrimmed()
{
    RandomBytes random("suffixed numbers");
    std::vector<double> values{0.0,        -0.0,    0.5,     1.5,    2.5,      -0.5,
                               1e-300,     -1e-9,   1e15,    1e16,   infinity, -infinity,
                               notANumber, DBL_MAX, DBL_MIN, 0.0005, 125e-6,   999999.9995};
    for (int i = RandomBytes::rounds(200); i > 0; --i) {
        const double magnitude = std::pow(10.0, random.below(16) - 3);
        values.push_back(magnitude * (random.below(2'000'001) - 1'000'000) / 1e6);
    }
    for (const double value : values) {
        const ESuffix unit = randomUnit(random);
        Frequency frequency(BaseUnit, unit);
        const double shown = value / std::pow(1000.0, unit - 1);
        const int decimals = frequency.GetDotPosition(value);
        const auto padded = [&](double number, int precision) {
            return QStringLiteral("%1").arg(number, 15, 'f', std::max(0, precision), u' ');
        };
        QCOMPARE(frequency.GetStringNoSuffix(), padded(shown, decimals).trimmed());
        QCOMPARE(frequency.GetShortStringNoSuffix(), padded(shown, decimals - 3).trimmed());
        QCOMPARE(frequency.GetPureNumbers(), padded(value, 0).replace(u' ', u'0'));
    }
}

void TestSuffixedDouble::typedText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<ESuffix>("resolution");
    QTest::addColumn<double>("expected");

    const std::tuple<const char*, ESuffix, double> rows[] = {
        {"12.5 M", BaseUnit, 12.5e6},   {"3 g", BaseUnit, 3e9},       {"7", BaseUnit, 7e6},
        {" 7,25kHz ", BaseUnit, 7250},  {"5h", Kilo, 5000},           {"5 Hz", BaseUnit, 5},
        {"5 Hz", Kilo, 5000},           {"MHz", BaseUnit, 0},         {"1e3", BaseUnit, 0},
        {"-9999.765 Hz", BaseUnit, 42}, {"-9.999765 k", BaseUnit, 42}};
    for (const auto& [text, resolution, expected] : rows)
        QTest::addRow("%s at %d", text, resolution)
            << QString::fromLatin1(text) << resolution << expected;
}

void TestSuffixedDouble::typedText()
{
    QFETCH(QString, text);
    QFETCH(ESuffix, resolution);
    QFETCH(double, expected);
    Frequency frequency(resolution, Mega);
    frequency.SetValue(42);
    frequency.SetFrequencyString(text);
    QCOMPARE(frequency.GetValue(), expected);
    QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("MHz"));
}

void TestSuffixedDouble::readsTypedTextAsPlainReader()
{
    const QString alphabet = QStringLiteral("kKmMgGhHzxe  0123456789.,-+\u2212\u00e4\u014d");
    const QStringList words = QStringLiteral(" Hz|MHz|kHz|GHz|12.5").split(u'|');
    RandomBytes random("typed frequencies");
    for (int i = RandomBytes::rounds(2000); i > 0; --i) {
        const ESuffix current = randomUnit(random);
        const ESuffix internal = randomUnit(random);
        const ESuffix resolution = randomUnit(random);
        Frequency frequency(BaseUnit, current);
        frequency.SetResolution(resolution);
        frequency.SetInternalSuffix(internal);
        QString text;
        for (int length = random.below(12); length > 0; --length) {
            text += random.below(5) == 0
                        ? words.at(random.below(static_cast<int>(words.size())))
                        : QString(alphabet.at(random.below(static_cast<int>(alphabet.size()))));
        }
        frequency.SetFrequencyString(text);
        frequency.SetInternalSuffix(BaseUnit);
        const double expected = storedByPlainReader(text, current, internal, resolution);
        QVERIFY2(frequency.GetValue() == expected, qPrintable(text));
    }
}

void TestSuffixedDouble::heldInOtherUnit()
{
    Frequency frequency(BaseUnit, Mega);
    frequency.SetInternalSuffix(Kilo);
    frequency.SetValue(2.5e6);
    QCOMPARE(frequency.GetValue(), 2.5e6);
    QCOMPARE(frequency.GetPureNumbers(), QStringLiteral("000000000002500"));
    // A spelled-out unit gives internal units, the assumed one gives base units.
    QCOMPARE(frequency.GetValue(QStringLiteral("3 MHz")), 3e3);
    QCOMPARE(frequency.GetValue(QStringLiteral("3")), 3e6);
    frequency.SetCharAt(u'7', 0);
    QCOMPARE(frequency.GetPureNumbers(), QStringLiteral("000000000000003"));
}

void TestSuffixedDouble::writtenTextIsReadBack()
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
void TestSuffixedDouble::editsDigits()
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
        } else if (operation == 3) {
            const bool moves = current < 15 - offset - 2;
            QCOMPARE(frequency.incrementIndex(), moves);
            current += moves ? 1 : 0;
        } else {
            const bool moves = current - offset >= 1;
            QCOMPARE(frequency.decrementIndex(), moves);
            current -= moves ? 1 : 0;
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

void TestSuffixedDouble::digitsOutsideTheNumber()
{
    constexpr int extreme = std::numeric_limits<int>::max();
    Frequency frequency(Kilo, Mega);
    frequency.SetValue(123456.75);
    for (const int index : {extreme, -extreme - 1, 100, -4}) {
        QVERIFY(frequency.GetCharAt(index).isNull());
        frequency.SetCharAt(u'5', index);
        frequency.incrementIndex();
        frequency.GetCurrentIndex();
        QVERIFY(frequency.GetRealSelectPosition(index) >= 0);
        QCOMPARE(frequency.GetValue(), 123456.75);
    }
    frequency.SetCharAt(u'x', 0);
    QCOMPARE(frequency.GetValue(), 0.0);

    for (const double value : {0.0, 5.0, -5.0, notANumber, infinity, -infinity, DBL_MAX}) {
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
    frequency.SetCurrentIndex2Max();
    QCOMPARE(frequency.GetCurrentIndex(), 11);
}

void TestSuffixedDouble::sharesTable()
{
    const QString hertz = QStringLiteral("Hz");
    SuffixedDouble first(hertz, 1000, false);
    SuffixedDouble second(hertz, 1000, false);
    SuffixedDouble separate(hertz, 1000, true);
    first.SetStringSuffix(QStringLiteral("Bq"));
    first.SetFactor(100);
    QCOMPARE(second.GetString(2.5e4), QStringLiteral("2.500000 MBq"));
    QCOMPARE(separate.GetString(2.5e4), QStringLiteral("0.025000 MHz"));
    second.SetResolution(Kilo);
    QCOMPARE(first.GetString(2.5e4), QStringLiteral("0.025 MHz"));
    QCOMPARE(separate.GetDotPosition(), 6);
}

void TestSuffixedDouble::followsApplicationUnit()
{
    GuiBase& guiBase = GuiBase::Instance();
    guiBase.SetFrequencyUnit(Giga);
    SuffixedDouble frequency(QStringLiteral("Hz"), 1000, true);
    QCOMPARE(frequency.GetSuffix(), QStringLiteral(" GHz"));
    for (const ESuffix unit : {BaseUnit, Kilo, Mega}) {
        guiBase.SetFrequencyUnit(unit);
        QCOMPARE(frequency.GetPureSuffix(),
                 guiBase.GetFrequencyUnit()->GetCurrentItem()->GetName());
    }
    frequency.SetResolution(Kilo);
    guiBase.SetFrequencyUnit(BaseUnit);
    QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("kHz"));
    frequency.ConnectToGuiCentral(false, Giga);
    guiBase.SetFrequencyUnit(Mega);
    QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("GHz"));
    frequency.ConnectToGuiCentral(true);
    QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("MHz"));
}

void TestSuffixedDouble::forgetsDeadUnit()
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
        unit.SetKey(2);
        unit.SetKey(1);
        QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("kHz"));
        unit.SetKey(2);
        QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("kHz"));
    }
    frequency.SetSuffixFromValue();
    QVERIFY(!frequency.SetSuffix_ValuePath(path));
    QCOMPARE(frequency.GetPureSuffix(), QStringLiteral("kHz"));
}

void TestSuffixedDouble::survivesOddSettings()
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
        frequency.SetCharAt(u'1', -1);
        frequency.GetCharAt(1);
        frequency.decrement(-1);
    }
}

QTEST_MAIN(TestSuffixedDouble)
#include "tst_suffixeddouble.moc"
