// SPDX-License-Identifier: MIT
#include "support/files.h"
#include "support/filesizelimit.h"
#include "support/guardedtest.h"

#include <jtbase/errorhandler.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/savecomponentif.h>

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

#include <functional>

#include <sys/stat.h>

namespace {

class Component : public SaveComponentIf
{
public:
    explicit Component(std::function<void()> action = {})
        : m_action(std::move(action))
    {
        CfgCenter::RegisterSaveComponent(this);
    }
    void Save() override { call(QStringLiteral("s")); }
    void Load() override { call(QStringLiteral("l")); }
    void CommitData() override { call(QStringLiteral("c")); }
    QString calls;

private:
    void call(const QString& what)
    {
        calls += what;
        if (m_action)
            m_action();
    }
    std::function<void()> m_action;
};

const QString key = QStringLiteral("key");
const QString number = QStringLiteral("number");

} // namespace

class tst_CfgCenter : public GuardedTest
{
    Q_OBJECT
    using Kinds = TestRows<QByteArray, QString, int, bool>;
    using Make = std::function<bool(const QString&)>;

private Q_SLOTS:
    void readsWhatWasStored()
    {
        const QString odd = QStringLiteral("\u20ac \" \\ / \n") + QChar(0) + QChar(0xD800);
        ICfg* const views[] = {settings, CfgCenter::GetAppCfg(LayoutView), CfgCenter::GetAppCfg(7),
                               CfgCenter::GetAdminCfg(SettingsView)};
        settings->SetString(odd, odd);
        settings->SetBool(key, true);
        settings->SetInt(QString(), 1);
        for (int i = 0; i < 4; ++i)
            views[i]->SetInt(number, i + std::numeric_limits<int>::min());
        settings->OpenSubCfg(number)->SetInt(key, 2);
        QVERIFY(!settings->OpenSubCfg(QString()));
        settings->OpenSubCfg(QStringLiteral("none"));
        QVERIFY(!QFile::exists(fileName));
        QVERIFY(settings->Store() && CfgCenter::Store());
        CfgCenter::LoadAll();

        QCOMPARE(settings->GetString(odd), odd);
        QCOMPARE(settings->GetBool(key), true);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(views[i]->GetInt(number), i + std::numeric_limits<int>::min());
        QCOMPARE(settings->GetKeys().size(), 3);
        QCOMPARE(settings->GetSubCfgNames(), QStringList(number));
        const auto inner = settings->OpenSubCfg(number);
        QCOMPARE(inner->GetInt(key), 2);

        settings->RemoveSubCfg(number);
        settings->Remove(key);
        QVERIFY(!inner->Contains(key));
        QVERIFY(CfgCenter::Store());
        CfgCenter::LoadAll();
        QVERIFY(!settings->HasSubCfg(number));
        QCOMPARE(settings->GetKeys().size(), 2);
    }
    void readsValuesOfOtherKinds_data()
    {
        Kinds row;
        row("fraction", "1.5", "-", 7, true);
        row("too large", "2147483648", "-", 7, true);
        row("boolean", "false", "-", 7, false);
        row("text of number", "\"-12\"", "-12", -12, true);
        row("text of boolean", "\"False\"", "False", 7, false);
        row("object", "{\"a\": 1}", "-", 7, true);
        row("array", "[\"a\",1]", "-", 7, true);
    }
    void readsValuesOfOtherKinds()
    {
        const auto& [value, text, integer, flag] = Kinds::fetch();
        QVERIFY(writeFile(fileName, "{\"settings\": {\"key\": " + value + "}}"));
        QCOMPARE(settings->GetString(key, QStringLiteral("-")), text);
        QCOMPARE(settings->GetInt(key, 7), integer);
        QCOMPARE(settings->GetBool(key, true), flag);
        // What no reader takes for a text is not lost when one is written.
        const bool isLost = text == QLatin1String("-") && !value.startsWith('{');
        if (isLost)
            expectTrace("\"key\": the value is of another kind; it is kept as \"key_damaged\"");
        settings->SetString(key, QStringLiteral("new"));
        QVERIFY(settings->Store());
        CfgCenter::LoadAll();
        QCOMPARE(settings->GetString(key), QStringLiteral("new"));
        QCOMPARE(settings->GetString(QStringLiteral("key_damaged")),
                 isLost ? QString::fromUtf8(value) : QString());
    }
    void keepsDamagedFilesAside_data()
    {
        TestRows<Make> row;
        row("cut",
            [](const QString& name) { return writeFile(name, "{\"settings\": {\"key\": 1"); });
        row("folder", [](const QString& name) { return QDir().mkpath(name); });
        row("pipe", [](const QString& name) {
            return QDir().mkpath(QFileInfo(name).path()) &&
                   ::mkfifo(QFile::encodeName(name).constData(), 0600) == 0;
        });
        row("too large", [](const QString& name) {
            return writeFile(name, "{") && QFile::resize(name, 100 * 1024 * 1024);
        });
    }
    void keepsDamagedFilesAside()
    {
        QVERIFY(std::get<Make>(TestRows<Make>::fetch())(fileName));
        const QFileInfo before(fileName);
        const QByteArray text = before.isFile() ? readFile(fileName) : QByteArray();
        expectTrace("test.json\" is damaged .* renamed to");
        QCOMPARE(settings->GetInt(key, 7), 7);

        const QStringList aside = QDir(configDir())
                                      .entryList({QStringLiteral("test.json.damaged-*")},
                                                 QDir::AllEntries | QDir::System);
        QCOMPARE(aside.size(), 1);
        const QFileInfo after(configDir() + u'/' + aside.first());
        QCOMPARE(after.isDir(), before.isDir());
        QCOMPARE(after.isFile() ? readFile(after.filePath()) : QByteArray(), text);
        QVERIFY(!QFileInfo::exists(fileName));
    }
    void keepsWhatItKnowsWhenTheFileGoesBad()
    {
        settings->SetInt(key, 1);
        QVERIFY(CfgCenter::Store());
        for (int round = 0; round < 2; ++round) { // both files are kept, even of the same second
            QVERIFY(writeFile(fileName, "damaged"));
            settings->SetInt(number, round + 1);
            expectTrace("is damaged .* renamed to");
            QVERIFY(CfgCenter::Store());
            CfgCenter::LoadAll();
            QCOMPARE(settings->GetInt(key), 1);
            QCOMPARE(settings->GetInt(number), round + 1);
        }
        QCOMPARE(QDir(configDir()).entryList({QStringLiteral("*.damaged-*")}).size(), 2);
    }
    void keepsChangesThatCannotBeStored()
    {
        settings->SetString(number, QString(2000, u'o'));
        QVERIFY(CfgCenter::Store());
        {
            const FileSizeLimit full(8192);
            settings->SetString(key, QString(10000, u'x'));
            expectTrace("not all of it could be written");
            QVERIFY(!CfgCenter::Store());
            expectTrace("not all of it could be written");
            CfgCenter::LoadAll();
            QCOMPARE(readFile(fileName).count('o'), 2000);
        }
        QVERIFY(CfgCenter::Store());
        QCOMPARE(readFile(fileName).count('x'), 10000);
    }
    void mergesWithWhatOthersStored()
    {
        const QString a = QStringLiteral("a"), sub = QStringLiteral("sub");
        settings->SetInt(a, 1);
        settings->SetInt(QStringLiteral("b"), 1);
        settings->OpenSubCfg(sub)->SetInt(a, 1);
        QVERIFY(CfgCenter::Store());
        QVERIFY(writeFile(fileName, "{\"future\":[9007199254740993,{\"x\":null}],\"settings\":"
                                    "{\"a\":2,\"c\":2,\"sub\":{\"a\":1,\"theirs\":2}}}"));
        settings->SetInt(a, 1); // not changed here, so the other one's stays
        settings->SetInt(QStringLiteral("d"), 3);
        settings->RemoveSubCfg(sub);
        settings->OpenSubCfg(sub)->SetInt(a, 3);
        QVERIFY(CfgCenter::Store());
        QCOMPARE(readFile(fileName).simplified(),
                 QByteArray("{ \"future\": [ 9007199254740993, { \"x\": null } ], \"settings\": { "
                            "\"a\": 2, \"c\": 2, \"d\": 3, \"sub\": { \"a\": 3 } } }"));
        // Nothing changed: nothing is written.
        QVERIFY(writeFile(fileName, "{ }"));
        settings->SetInt(QStringLiteral("d"), 3);
        QVERIFY(CfgCenter::Store());
        QCOMPARE(readFile(fileName), QByteArray("{ }"));
    }
    void storesByItself()
    {
        // Changes that never pause for so long do not keep it from storing.
        CfgCenter::SetAutoStoreDelay(300);
        int last = 0;
        QTRY_VERIFY([&] {
            settings->SetInt(key, ++last);
            return QFile::exists(fileName);
        }());
        QVERIFY(last > 1);

        // While another process has the file it tries again.
        CfgCenter::SetAutoStoreDelay(10);
        QTRY_VERIFY(readFile(fileName).contains("\"key\": " + QByteArray::number(last)));
        QLockFile lock(fileName + QStringLiteral(".lock"));
        QVERIFY(lock.lock());
        const QString traces = configDir() + QStringLiteral("/traces");
        QVERIFY(ErrorHandler::SetTraceFile(traces));
        expectTrace("was not stored: another process");
        settings->SetInt(key, -1);
        QTRY_VERIFY(readFile(traces).contains("was not stored"));
        ErrorHandler::SetTraceFile(QString());
        lock.unlock();
        QTRY_VERIFY(readFile(fileName).contains("\"key\": -1"));
        CfgCenter::SetAutoStoreDelay(-1);
    }
    void storesBeforeItMoves()
    {
        settings->SetInt(key, 1);
        CfgCenter::SetConfigDir(configDir() + QStringLiteral("/elsewhere"));
        QVERIFY(readFile(fileName).contains("\"key\": 1"));
        QVERIFY(!settings->Contains(key));
        CfgCenter::SetConfigDir(configDir());
        QCOMPARE(settings->GetInt(key), 1);
        CfgCenter::SetAppName(QStringLiteral("other"));
        QVERIFY(!settings->Contains(key));
        QVERIFY(CfgCenter::GetAppCfgFileName().endsWith(QLatin1String("/other.json")));
        CfgCenter::SetAppName(QStringLiteral("../a\\b"));
        QCOMPARE(CfgCenter::GetAppName(), QStringLiteral(".._a_b"));
        CfgCenter::SetAppName(QString());
        QCOMPARE(CfgCenter::GetAppName(), QStringLiteral("tst_cfgcenter"));
        CfgCenter::SetConfigDir(QString());
        QCOMPARE(CfgCenter::GetAppCfgFileName(),
                 QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                     QStringLiteral("/tst_cfgcenter.json"));
    }
    void callsComponents()
    {
        std::unique_ptr<Component> victim;
        std::unique_ptr<Component> latecomer;
        Component first([&] {
            victim.reset();
            if (!latecomer)
                latecomer = std::make_unique<Component>();
        });
        victim = std::make_unique<Component>([] { QFAIL("called after its end"); });
        Component last([this] { settings->SetInt(key, 1); });
        CfgCenter::RegisterSaveComponent(&last);
        QVERIFY(CfgCenter::SaveAll());
        QVERIFY(readFile(fileName).contains("\"key\": 1"));
        QCOMPARE(latecomer->calls, QString());
        QVERIFY(CfgCenter::CommitAll());
        CfgCenter::UnregisterSaveComponent(&last);
        CfgCenter::LoadAll();
        QCOMPARE(first.calls, QStringLiteral("scl"));
        QCOMPARE(last.calls, QStringLiteral("sc"));
        QCOMPARE(latecomer->calls, QStringLiteral("cl"));
    }

private:
    void prepare() override
    {
        CfgCenter::SetAppName(QStringLiteral("test"));
        fileName = CfgCenter::GetAppCfgFileName();
        QCOMPARE(fileName, configDir() + QStringLiteral("/test.json"));
        settings = CfgCenter::GetAppCfg(SettingsView);
    }

    QString fileName;
    ICfg* settings = nullptr;
};

QTEST_GUILESS_MAIN(tst_CfgCenter)
#include "tst_cfgcenter.moc"
