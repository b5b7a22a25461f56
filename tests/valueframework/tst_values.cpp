// SPDX-License-Identifier: MIT
#include <valueframework/value.h>
#include <valueframework/valueselection.h>

#include "support/testrows.h"

#include <QTest>

#include <functional>

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

} // namespace

class TestValues : public QObject
{
    Q_OBJECT
    using Action = std::function<bool(ValueSelection&)>;
    using Rules = TestRows<QList<int>, int, Action, bool, int, QString>;
    using Variants = TestRows<QVariant, QString>;

private Q_SLOTS:
    void selectionRules_data()
    {
        // Keys, current index, action, whether it is accepted; current index then, what is told.
        Rules row;
        row("first item becomes current", {}, -1, insert(5), true, 0, "8:9 3:9");
        row("insert before current", {1, 2}, 1, insert(0), true, 2, "8:2");
        row("insert at current", {1, 2}, 0, insert(0), true, 1, "8:1");
        row("insert behind the end", {1, 2}, 1, insert(99), true, 1, "8:2");
        row("insert before the start", {1, 2}, 1, insert(-7), true, 2, "8:2");
        row("remove before current", {1, 2, 3}, 1, remove(0), true, 0, "9:2");
        row("remove after current", {1, 2, 3}, 1, remove(2), true, 1, "9:2");
        row("remove current", {1, 2, 3}, 1, remove(1), true, 1, "9:3 3:3");
        row("remove current at the end", {1, 2, 3}, 2, remove(2), true, 1, "9:2 3:2");
        row("remove the only item", {1}, 0, remove(0), true, -1, "9: 3:");
        row("remove nothing", {1}, 0, remove(1), false, 0, "");
        row("replace, item stays", {1, 2}, 1, replace({5, 2}), true, 1, "4:2");
        row("replace, same key, other name", {1, 2}, 1, replace({2, 1}), true, 0, "4:2 3:2");
        row("replace, key is gone", {1, 2}, 1, replace({7, 8}), true, 0, "4:7 3:7");
        row("replace by nothing", {1, 2}, 1, replace({}), true, -1, "4: 3:");
        row("key", {1, 2}, 0, key(2), true, 1, "3:2");
        row("key that a former item has too", {2, 1, 2}, 2, key(2), true, 2, "");
        row("unknown key", {1, 2}, 1, key(3), false, 1, "");
        row("value", {1, 2, 3}, 0, value(1.5), true, 2, "3:3");
        row("unknown value", {1, 2}, 0, value(1.25), false, 0, "");
        row("no number", {1, 2}, 0, value(std::nan("")), false, 0, "");
        row("index behind the end", {1, 2}, 0, index(2), false, 0, "");
        row("no index", {1, 2}, 0, index(-1), false, 0, "");
    }
    void selectionRules()
    {
        const auto& [keys, before, action, accepted, indexAfter, told] = Rules::fetch();
        ValueSelection selection(QStringLiteral("selection"));
        QCOMPARE(selection.GetValue(), 0.0);
        for (const SelectionItem& item : items(keys))
            selection.AddItem(item);
        QCOMPARE(selection.GetCurrentIndex(), keys.isEmpty() ? -1 : 0);
        selection.SetCurrentIndex(before);
        Recorder recorder(selection);
        QCOMPARE(action(selection), accepted);
        QCOMPARE(selection.GetCurrentIndex(), indexAfter);
        QCOMPARE(recorder.takeLog(), told);
        QCOMPARE(selection.GetCurrentItem(), selection.GetItem(indexAfter));
    }
    void limits()
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
        for (const double value :
             {12.5, 10.4, 19.6, -1e300, std::numeric_limits<double>::infinity()})
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
    void variantsThatDoNotFit_data()
    {
        Variants row; // accepted by bool, text, int, double and selection
        row("invalid", QVariant(), "-----");
        row("list", QVariantList{1}, "-----");
        row("text", QStringLiteral("x"), "-t---");
        row("truth as text", QStringLiteral("True"), "bt---");
        row("key as text", QStringLiteral("1"), "btids");
        row("other key", 7, "btid-");
        row("fraction", 1.5, "btid-");
        row("too large", 1e300, "btid-");
        row("not a number", std::nan(""), "bt---");
    }
    void variantsThatDoNotFit()
    {
        const auto& [variant, expected] = Variants::fetch();
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
        QCOMPARE(accepted, expected);
    }

private:
    using S = ValueSelection&;
    static Action insert(int index)
    {
        return [index](S s) {
            s.InsertItem(index, SelectionItem(QStringLiteral("new"), true, 9));
            return true;
        };
    }
    static Action replace(const QList<int>& keys)
    {
        return [keys](S s) { return s.SetItems(items(keys)), true; };
    }
    static Action remove(int index)
    {
        return [index](S s) { return s.RemoveItem(index); };
    }
    static Action key(int key)
    {
        return [key](S s) { return s.SetKey(key); };
    }
    static Action value(double value)
    {
        return [value](S s) { return s.SetValue(value); };
    }
    static Action index(int index)
    {
        return [index](S s) { return s.SetCurrentIndex(index); };
    }
};

QTEST_GUILESS_MAIN(TestValues)
#include "tst_values.moc"
