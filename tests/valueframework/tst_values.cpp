// SPDX-License-Identifier: MIT
#include "probe.h"

#include <valueframework/value.h>
#include <valueframework/valueselection.h>

#include "support/testrows.h"

#include <cmath>
#include <limits>
#include <utility>

namespace {

/// Writes down what is told of the value, with the value at that moment.
Probe recorder(ValueBase& value, QString& log)
{
    return Probe([&](Probe*, Observable*, TChangeCode code) {
        log += QStringLiteral("%1:%2 ").arg(code).arg(value.GetVariant().toString());
    });
}

/// Items "0", "1", ... with the given keys and values of half the key.
std::vector<SelectionItem> items(const QList<int>& keys)
{
    std::vector<SelectionItem> result;
    for (const int key : keys)
        result.emplace_back(QString::number(result.size()), false, key / 2.0, key);
    return result;
}

bool insert(ValueSelection& selection, int index)
{
    selection.InsertItem(index, SelectionItem(QStringLiteral("new"), true, 9));
    return true;
}

bool refill(ValueSelection& selection, const QList<int>& keys)
{
    selection.SetItems(items(keys));
    return true;
}

} // namespace

class tst_Values : public QObject
{
    Q_OBJECT
    using S = ValueSelection&;
    using Rules = TestRows<QList<int>, int, bool, int, QString, bool (*)(S)>;
    using Variants = TestRows<QVariant, QString>;

private Q_SLOTS:
    void selectionRules_data()
    {
        Rules row; // keys, current index; whether it is accepted, current index then, what is told
        row("first item", {}, -1, true, 0, "8:9 3:9", [](S s) { return insert(s, 5); });
        row("insert at current", {1, 2}, 0, true, 1, "8:1", [](S s) { return insert(s, 0); });
        row("insert behind the end", {1, 2}, 1, true, 1, "8:2", [](S s) { return insert(s, 99); });
        row("insert first", {1, 2}, 1, true, 2, "8:2", [](S s) { return insert(s, -7); });
        row("remove before", {1, 2, 3}, 1, true, 0, "9:2", [](S s) { return s.RemoveItem(0); });
        row("remove after", {1, 2, 3}, 1, true, 1, "9:2", [](S s) { return s.RemoveItem(2); });
        row("remove last", {1, 2, 3}, 2, true, 1, "9:2 3:2", [](S s) { return s.RemoveItem(2); });
        row("remove all", {1}, 0, true, -1, "9: 3:", [](S s) { return s.RemoveItem(0); });
        row("remove nothing", {1}, 0, false, 0, "", [](S s) { return s.RemoveItem(1); });
        row("item stays", {1, 2}, 1, true, 1, "4:2", [](S s) { return refill(s, {5, 2}); });
        row("other name", {1, 2}, 1, true, 0, "4:2 3:2", [](S s) { return refill(s, {2, 1}); });
        row("key is gone", {1, 2}, 1, true, 0, "4:7 3:7", [](S s) { return refill(s, {7, 8}); });
        row("replace by none", {1, 2}, 1, true, -1, "4: 3:", [](S s) { return refill(s, {}); });
        row("same keys", {2, 1, 2}, 2, true, 2, "", [](S s) { return s.SetKey(2); });
        row("unknown key", {1, 2}, 1, false, 1, "", [](S s) { return s.SetKey(3); });
        row("value", {1, 2, 3}, 0, true, 2, "3:3", [](S s) { return s.SetValue(1.5); });
        row("unknown value", {1, 2}, 0, false, 0, "", [](S s) { return s.SetValue(1.25); });
        row("no number", {1, 2}, 0, false, 0, "", [](S s) { return s.SetValue(std::nan("")); });
    }
    void selectionRules()
    {
        const auto& [keys, before, accepted, indexAfter, told, action] = Rules::fetch();
        ValueSelection selection(QStringLiteral("selection"));
        for (const SelectionItem& item : items(keys))
            selection.AddItem(item);
        QCOMPARE(selection.GetCurrentIndex(), keys.isEmpty() ? -1 : 0);
        QCOMPARE(selection.SetCurrentIndex(before), before >= 0);
        QString log;
        Probe probe = recorder(selection, log);
        selection.Attach(&probe);
        QCOMPARE(action(selection), accepted);
        QCOMPARE(selection.GetCurrentIndex(), indexAfter);
        QCOMPARE(log.trimmed(), told);
    }
    void limits()
    {
        ValueNumeric<int> number(QStringLiteral("int"), 50, 100, 0);
        IValueNumeric& numeric = number;
        QString log;
        Probe probe = recorder(number, log);
        number.Attach(&probe);
        number.SetRange(20, 10);
        QCOMPARE(std::exchange(log, {}), QStringLiteral("4:20 3:20 "));
        number.SetRange(10, 20);
        numeric.SetAsDouble(std::nan(""));
        QCOMPARE(log, QString());
        for (const double value :
             {12.5, 10.4, 19.6, -1e300, std::numeric_limits<double>::infinity()})
            numeric.SetAsDouble(value);
        QCOMPARE(std::exchange(log, {}), QStringLiteral("3:13 3:10 3:20 3:10 3:20 "));
        number.SetRange(std::numeric_limits<int>::lowest(), std::numeric_limits<int>::max());
        numeric.SetAsDouble(1e10);
        QCOMPARE(number.GetValue(), std::numeric_limits<int>::max());

        ValueNumeric<double> real(QStringLiteral("double"), std::nan(""), 1.5, std::nan(""));
        QCOMPARE(real.GetValue(), 1.5);
        real.SetRange(std::nan(""), 3.0);
        QCOMPARE(real.GetMaximum(), std::numeric_limits<double>::max());

        ValueNumeric<quint64> wide(QStringLiteral("quint64"));
        QVERIFY(wide.SetVariant(1e300));
        QCOMPARE(wide.GetValue(), ~0ULL);
        QVERIFY(wide.SetVariant(QStringLiteral("1152921504606846977")));
        QCOMPARE(wide.GetValue(), (1ULL << 60) + 1);
    }
    void changesWithinNotifications()
    {
        ValueNumeric<int> number(QStringLiteral("number"));
        QString log;
        int depth = 0;
        Probe even([&](auto...) {
            QCOMPARE(++depth, 1);
            number.SetValue(number.GetValue() / 2 * 2);
            --depth;
        });
        number.Attach(&even);
        Probe probe = recorder(number, log);
        number.Attach(&probe);
        number.SetValue(7);
        QCOMPARE(log, QStringLiteral("3:6 3:6 "));
        Probe restless([&](auto...) { number.SetValue(number.GetValue() + 2); });
        number.Attach(&restless);
        QTest::ignoreMessage(QtWarningMsg, "The value number changes with every notification");
        number.SetValue(0);
        number.Detach(&restless);
        number.SetValue(0);
        QVERIFY(log.endsWith(QStringLiteral("3:0 ")));
    }
    void variantsThatDoNotFit_data()
    {
        Variants row; // accepted by bool, text, int, double and selection
        row("list", QVariantList{1}, "-----");
        row("text", QStringLiteral("x"), "-t---");
        row("truth as text", QStringLiteral("True"), "bt---");
        row("key as text", QStringLiteral("1"), "btids");
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
};

QTEST_GUILESS_MAIN(tst_Values)
#include "tst_values.moc"
