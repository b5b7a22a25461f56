// SPDX-License-Identifier: MIT
#include <valueframework/value.h>
#include <valueframework/valueselection.h>

#include <QTest>

#include <cmath>
#include <limits>
#include <utility>

namespace {

/// Writes down what it is told, with the value at that moment.
class Recorder : public IObserver
{
public:
    explicit Recorder(ValueBase& value)
        : m_value(value)
    {
        value.Attach(this);
    }
    void Update(Observable*, TChangeCode code) override
    {
        m_log << QStringLiteral("%1:%2").arg(code).arg(m_value.GetVariant().toString());
    }
    QString takeLog() { return std::exchange(m_log, {}).join(QLatin1Char(' ')); }

private:
    ValueBase& m_value;
    QStringList m_log;
};

/// Items "0", "1", ... with the given keys and values of half the key.
std::vector<SelectionItem> items(const QList<int>& keys)
{
    std::vector<SelectionItem> result;
    for (const int key : keys)
        result.emplace_back(QString::number(result.size()), false, key / 2.0, key);
    return result;
}

enum Action { Insert, Remove, Replace, Key, Val, Index };

struct SelectionRule
{
    const char* name;
    QList<int> keys;
    int index;
    Action action;
    QList<double> argument;
    bool accepted;
    int indexAfter;
    const char* told;
};

bool act(ValueSelection& selection, const SelectionRule& rule)
{
    const int argument = static_cast<int>(rule.argument.value(0));
    switch (rule.action) {
    case Insert:
        selection.InsertItem(argument, SelectionItem(QStringLiteral("new"), true, 9));
        return true;
    case Remove:
        return selection.RemoveItem(argument);
    case Replace:
        selection.SetItems(items(QList<int>(rule.argument.begin(), rule.argument.end())));
        return true;
    case Key:
        return selection.SetKey(argument);
    case Val:
        return selection.SetValue(rule.argument.value(0));
    case Index:
        break;
    }
    return selection.SetCurrentIndex(argument);
}

} // namespace

Q_DECLARE_METATYPE(SelectionRule)

class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectionRules_data();
    void selectionRules();
    void limits();
    void variantsThatDoNotFit_data();
    void variantsThatDoNotFit();
};

void TestValues::selectionRules_data()
{
    QTest::addColumn<SelectionRule>("rule");
    const SelectionRule rules[] = {
        {"first item becomes current", {}, -1, Insert, {5}, true, 0, "8:9 3:9"},
        {"insert before current", {1, 2}, 1, Insert, {0}, true, 2, "8:2"},
        {"insert at current", {1, 2}, 0, Insert, {0}, true, 1, "8:1"},
        {"insert behind the end", {1, 2}, 1, Insert, {99}, true, 1, "8:2"},
        {"insert before the start", {1, 2}, 1, Insert, {-7}, true, 2, "8:2"},
        {"remove before current", {1, 2, 3}, 1, Remove, {0}, true, 0, "9:2"},
        {"remove after current", {1, 2, 3}, 1, Remove, {2}, true, 1, "9:2"},
        {"remove current", {1, 2, 3}, 1, Remove, {1}, true, 1, "9:3 3:3"},
        {"remove current at the end", {1, 2, 3}, 2, Remove, {2}, true, 1, "9:2 3:2"},
        {"remove the only item", {1}, 0, Remove, {0}, true, -1, "9: 3:"},
        {"remove nothing", {1}, 0, Remove, {1}, false, 0, ""},
        {"replace, item stays", {1, 2}, 1, Replace, {5, 2}, true, 1, "4:2"},
        {"replace, same key, other name", {1, 2}, 1, Replace, {2, 1}, true, 0, "4:2 3:2"},
        {"replace, key is gone", {1, 2}, 1, Replace, {7, 8}, true, 0, "4:7 3:7"},
        {"replace by nothing", {1, 2}, 1, Replace, {}, true, -1, "4: 3:"},
        {"key", {1, 2}, 0, Key, {2}, true, 1, "3:2"},
        {"key that a former item has too", {2, 1, 2}, 2, Key, {2}, true, 2, ""},
        {"unknown key", {1, 2}, 1, Key, {3}, false, 1, ""},
        {"value", {1, 2, 3}, 0, Val, {1.5}, true, 2, "3:3"},
        {"unknown value", {1, 2}, 0, Val, {1.25}, false, 0, ""},
        {"no number", {1, 2}, 0, Val, {std::nan("")}, false, 0, ""},
        {"index behind the end", {1, 2}, 0, Index, {2}, false, 0, ""},
        {"no index", {1, 2}, 0, Index, {-1}, false, 0, ""},
    };
    for (const SelectionRule& rule : rules)
        QTest::newRow(rule.name) << rule;
}

void TestValues::selectionRules()
{
    QFETCH(SelectionRule, rule);
    ValueSelection selection(QStringLiteral("selection"));
    QCOMPARE(selection.GetValue(), 0.0);
    for (const SelectionItem& item : items(rule.keys))
        selection.AddItem(item);
    QCOMPARE(selection.GetCurrentIndex(), rule.keys.isEmpty() ? -1 : 0);
    selection.SetCurrentIndex(rule.index);
    Recorder recorder(selection);
    QCOMPARE(act(selection, rule), rule.accepted);
    QCOMPARE(selection.GetCurrentIndex(), rule.indexAfter);
    QCOMPARE(recorder.takeLog(), QString::fromLatin1(rule.told));
    QCOMPARE(selection.GetCurrentItem(), selection.GetItem(rule.indexAfter));
}

void TestValues::limits()
{
    ValueNumeric<int> number(QStringLiteral("int"), 50, 100, 0);
    IValueNumeric& numeric = number;
    Recorder recorder(number);
    number.SetRange(20, 10);
    QCOMPARE(recorder.takeLog(), QStringLiteral("4:20 3:20"));
    number.SetRange(10, 20);
    number.SetValue(30);
    numeric.SetAsDouble(std::nan(""));
    QCOMPARE(recorder.takeLog(), QString());
    for (const double value : {12.5, 10.4, 19.6, -1e300, std::numeric_limits<double>::infinity()})
        numeric.SetAsDouble(value);
    QCOMPARE(recorder.takeLog(), QStringLiteral("3:13 3:10 3:20 3:10 3:20"));
    number.SetRange(std::numeric_limits<int>::lowest(), std::numeric_limits<int>::max());
    numeric.SetAsDouble(1e10);
    QCOMPARE(number.GetValue(), std::numeric_limits<int>::max());

    ValueNumeric<double> real(QStringLiteral("double"), std::nan(""), 1.5, std::nan(""));
    QCOMPARE(real.GetValue(), 1.5);
    real.SetRange(std::nan(""), 3.0);
    QCOMPARE(real.GetMaximum(), std::numeric_limits<double>::max());
}

void TestValues::variantsThatDoNotFit_data()
{
    QTest::addColumn<QVariant>("variant");
    QTest::addColumn<QString>("accepted"); // by bool, text, int, double and selection
    QTest::newRow("invalid") << QVariant() << QStringLiteral("-----");
    QTest::newRow("list") << QVariant(QVariantList{1}) << QStringLiteral("-----");
    QTest::newRow("text") << QVariant(QStringLiteral("x")) << QStringLiteral("-t---");
    QTest::newRow("truth as text") << QVariant(QStringLiteral("True")) << QStringLiteral("bt---");
    QTest::newRow("key as text") << QVariant(QStringLiteral("1")) << QStringLiteral("btids");
    QTest::newRow("other key") << QVariant(7) << QStringLiteral("btid-");
    QTest::newRow("fraction") << QVariant(1.5) << QStringLiteral("btid-");
    QTest::newRow("too large") << QVariant(1e300) << QStringLiteral("btid-");
    QTest::newRow("not a number") << QVariant(std::nan("")) << QStringLiteral("bt---");
}

void TestValues::variantsThatDoNotFit()
{
    QFETCH(QVariant, variant);
    Value<bool> truth(QStringLiteral("bool"));
    Value<QString> text(QStringLiteral("text"));
    ValueNumeric<int> number(QStringLiteral("int"));
    ValueNumeric<double> real(QStringLiteral("double"));
    ValueSelection selection(QStringLiteral("selection"));
    selection.SetItems(items({0, 1, 2}));
    const std::pair<char, ValueBase*> values[] = {
        {'b', &truth}, {'t', &text}, {'i', &number}, {'d', &real}, {'s', &selection}};
    QString accepted;
    for (const auto& [sign, value] : values) {
        const QVariant before = value->GetVariant();
        const bool fits = value->SetVariant(variant);
        accepted += QLatin1Char(fits ? sign : '-');
        QVERIFY(fits || value->GetVariant() == before);
    }
    QTEST(accepted, "accepted");
}

QTEST_GUILESS_MAIN(TestValues)
#include "tst_values.moc"
