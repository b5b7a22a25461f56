// SPDX-License-Identifier: MIT
#include <valueframework/persistant.h>
#include <valueframework/value.h>
#include <valueframework/valueselection.h>

#include <trovappstartup/cfgcenter.h>

#include "support/files.h"
#include "support/guardedtest.h"

#include <array>

namespace {

/// A record with a member of each kind.
class Settings : public PersistantOwner
{
public:
    Settings()
    {
        for (ValueSelection* selection : {&byKey, &byValue, &choice}) {
            selection->AddItem(SelectionItem(QStringLiteral("none"), false, 0.0, 10));
            selection->AddItem(SelectionItem(QStringLiteral("half"), false, 0.5, 11));
            selection->AddItem(SelectionItem(QStringLiteral("one"), false, 1.0, 12));
            selection->SetCurrentIndex(1);
        }
        record.Add(&text, QStringLiteral("Text"), QStringLiteral("default"));
        record.Add(&flag, QStringLiteral("Flag"), true);
        record.Add(&number, QStringLiteral("Number"), 7);
        record.Add(&byKey, QStringLiteral("ByKey"), 0);
        record.Add(&byValue, QStringLiteral("ByValue"), 1);
        for (ValueBase* value : values())
            record.Add(value, value->GetName());
    }
    void ApplyPersistantBeforeWrite() override { number *= 2; }
    void ApplyPersistantAfterRead() override
    {
        shown = QStringLiteral("%1|%2|%3|%4|%5")
                    .arg(text)
                    .arg(flag)
                    .arg(number)
                    .arg(byKey.GetCurrentIndex())
                    .arg(byValue.GetCurrentIndex());
    }

    std::array<ValueBase*, 7> values()
    {
        return {&truth, &whole, &large, &real, &time, &words, &choice};
    }
    QString valuesText()
    {
        QStringList texts;
        for (const ValueBase* value : values())
            texts << value->GetVariant().toString();
        return texts.join(QLatin1Char('|'));
    }

    Value<bool> truth{QStringLiteral("Truth")};
    ValueNumeric<int> whole{QStringLiteral("Whole"), 5, -10, 10};
    ValueNumeric<quint64> large{QStringLiteral("Large")};
    ValueNumeric<double> real{QStringLiteral("Real")};
    Value<QDateTime> time{QStringLiteral("Time"), QDateTime::fromMSecsSinceEpoch(1, Qt::UTC)};
    Value<QString> words{QStringLiteral("Words")};
    ValueSelection choice{QStringLiteral("Choice")};
    QString text = QStringLiteral("initial");
    bool flag = false;
    int number = -1;
    ValueSelection byKey{QStringLiteral("key")};
    ValueSelection byValue{QStringLiteral("value")};
    Persistant record{QStringLiteral("Record"), this};
    QString shown;
};

} // namespace

class tst_Persistant : public GuardedTest
{
    Q_OBJECT
    using Stored = TestRows<QByteArray, QString, QString>;

    /// What was kept aside of the record, as "Key=text".
    static QString keptAside()
    {
        const auto cfg = CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("Record"));
        QStringList found;
        for (const QString& key : cfg->GetKeys()) {
            if (key.endsWith(QStringLiteral("_damaged")))
                found << QString(key).replace(QStringLiteral("_damaged"), QStringLiteral("=")) +
                             cfg->GetString(key);
        }
        return found.join(QLatin1Char(' '));
    }

private Q_SLOTS:
    void roundTrip()
    {
        for (const QString& subKey : {QString(), QStringLiteral("sub")}) {
            Settings written;
            written.text = subKey;
            written.flag = false;
            written.number = 21;
            written.byKey.SetCurrentIndex(0);
            written.byValue.SetCurrentIndex(2);
            written.record.Write(subKey);
            CfgCenter::LoadAll();
            Settings read;
            QVERIFY(read.record.Exists());
            read.record.Read(subKey);
            QCOMPARE(read.shown, subKey + QStringLiteral("|0|42|0|2"));
        }
        Settings erased;
        erased.record.Erase();
        CfgCenter::LoadAll();
        QVERIFY(!erased.record.Exists());
        erased.record.Read(QStringLiteral("sub"));
        QCOMPARE(erased.shown, QStringLiteral("default|1|7|1|1"));
    }
    void valuesOfAllKindsComeBack()
    {
        const QString initial = Settings().valuesText();
        Settings written;
        written.truth.SetValue(true);
        written.whole.SetValue(-7);
        written.large.SetValue(~0ULL);
        written.real.SetValue(0.1 + 0.2);
        written.time.SetValue(QDateTime(QDate(2026, 3, 1), QTime(1, 2, 3, 4), Qt::LocalTime));
        written.words.SetValue(QStringLiteral("two\nlines"));
        written.choice.SetCurrentIndex(2);
        written.record.Write(QString());
        CfgCenter::LoadAll();
        Settings read;
        read.record.Read(QStringLiteral("nothing stored"));
        QCOMPARE(read.valuesText(), initial);
        read.record.Read(QString());
        for (std::size_t i = 0; i < read.values().size(); ++i)
            QCOMPARE(read.values()[i]->GetVariant(), written.values()[i]->GetVariant());
        written.words.SetValue({});
        written.record.Write(QString());
        read.record.Read(QString());
        QVERIFY(read.words.GetValue().isEmpty()); // not the same as nothing stored

        QVERIFY(writeFile(CfgCenter::GetAppCfgFileName(),
                          R"({"settings": {"Record": {"Truth": 3, "Whole": 11, "Large": "-1",
                              "Real": "nan", "Time": "soon", "Words": false, "Choice": 99}}})"));
        CfgCenter::LoadAll();
        Settings damaged;
        damaged.record.Read(QString());
        QCOMPARE(damaged.valuesText(),
                 QString(initial).replace(QStringLiteral("|5|"), QStringLiteral("|10|")));
        damaged.record.Write(QString());
        QCOMPARE(keptAside(), QStringLiteral("Choice=99 Real=nan Time=soon Truth=3"));
    }
    void readsWhatIsStored_data()
    {
        Stored row;
        row("other kinds", R"("Text": false, "Flag": "perhaps", "Number": "3x")", "default|1|7|1|1",
            "Flag=perhaps Number=3x Text=false");
        row("known items", R"("ByKey": 12, "ByValue": 0)", "default|1|7|2|0", "");
        row("items as texts", R"("ByKey": "10", "ByValue": "1.0")", "default|1|7|0|2", "");
        row("unknown items", R"("ByKey": 1, "ByValue": 12)", "default|1|7|1|1",
            "ByKey=1 ByValue=12");
        row("truth for items", R"("ByKey": true, "ByValue": true)", "default|1|7|1|1",
            "ByKey=true ByValue=true");
    }
    void readsWhatIsStored()
    {
        const auto& [stored, expected, aside] = Stored::fetch();
        QVERIFY(writeFile(CfgCenter::GetAppCfgFileName(),
                          "{\"settings\": {\"Record\": {" + stored + "}}}"));
        Settings settings;
        settings.record.Read(QString());
        QCOMPARE(settings.shown, expected);
        QCOMPARE(keptAside(), aside);
    }
    void nullMembersAreRefused()
    {
        Persistant record(QStringLiteral("Record"));
        record.Add(static_cast<QString*>(nullptr), QStringLiteral("a"));
        record.Add(nullptr);
        record.Write(QString());
        QVERIFY(!record.Exists());
        Persistant nameless{QString()};
        nameless.Read(QString());
        nameless.Write(QString());
        nameless.Erase();
    }
};

QTEST_GUILESS_MAIN(tst_Persistant)
#include "tst_persistant.moc"
