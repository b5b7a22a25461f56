// SPDX-License-Identifier: MIT
#include "support/testguard.h"

#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/savecomponentif.h>

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include <functional>
#include <memory>

#include <sys/stat.h>

namespace {

void expectTrace(const char* pattern)
{
    QTest::ignoreMessage(QtInfoMsg, QRegularExpression(QLatin1String(pattern)));
}

bool writeFile(const QString& name, const QByteArray& text)
{
    QFile file(name);
    return QDir().mkpath(QFileInfo(name).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(text) == text.size();
}

QByteArray readFile(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

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

} // namespace

class TestCfgCenter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void readsWhatWasStored();
    void readsValuesOfOtherKinds_data();
    void readsValuesOfOtherKinds();
    void keepsDamagedFilesAside_data();
    void keepsDamagedFilesAside();
    void keepsWhatItKnowsWhenTheFileGoesBad();
    void keepsChangesThatCannotBeStored();
    void mergesWithWhatOthersStored();
    void storesByItself();
    void storesBeforeItMoves();
    void namesItsFile();
    void callsComponents();

private:
    std::unique_ptr<TestGuard> guard;
    QString fileName;
    ICfg* settings = nullptr;
    ICfg* layout = nullptr;
};

void TestCfgCenter::init()
{
    guard = std::make_unique<TestGuard>();
    CfgCenter::SetAppName(QStringLiteral("test"));
    fileName = CfgCenter::GetAppCfgFileName();
    QCOMPARE(fileName, guard->configDir() + QStringLiteral("/test.json"));
    settings = CfgCenter::GetAppCfg(SettingsView);
    layout = CfgCenter::GetAppCfg(LayoutView);
}

void TestCfgCenter::cleanup()
{
    QCOMPARE(guard->finish(), QString());
    guard.reset();
}

void TestCfgCenter::readsWhatWasStored()
{
    const QString odd = QStringLiteral("\u20ac \" \\ / \n") + QChar(0) + QChar(0xD800);
    const QString huge(3000000, u'\u00fc');
    settings->SetString(odd, odd);
    settings->SetString(QStringLiteral("huge"), huge);
    settings->SetInt(QStringLiteral("number"), std::numeric_limits<int>::min());
    settings->SetBool(QStringLiteral("yes"), true);
    settings->SetInt(QString(), 1);
    settings->OpenSubCfg(QStringLiteral("number"))->SetInt(QStringLiteral("inner"), 2);
    layout->SetInt(QStringLiteral("number"), 3);
    CfgCenter::GetAppCfg(7)->SetInt(QStringLiteral("number"), 4);
    CfgCenter::GetAdminCfg(SettingsView)->SetInt(QStringLiteral("number"), 5);
    QVERIFY(!settings->HasSubCfg(QStringLiteral("none")));
    QVERIFY(!settings->OpenSubCfg(QString()));
    settings->OpenSubCfg(QStringLiteral("none"));
    QVERIFY(!QFile::exists(fileName));
    QVERIFY(settings->Store());
    QVERIFY(CfgCenter::Store());
    CfgCenter::LoadAll();

    QCOMPARE(settings->GetString(odd), odd);
    QCOMPARE(settings->GetString(QStringLiteral("huge")), huge);
    QCOMPARE(settings->GetInt(QStringLiteral("number")), std::numeric_limits<int>::min());
    QCOMPARE(settings->GetBool(QStringLiteral("yes")), true);
    QCOMPARE(settings->GetKeys().size(), 4);
    QCOMPARE(settings->GetSubCfgNames(), QStringList(QStringLiteral("number")));
    const auto inner = settings->OpenSubCfg(QStringLiteral("number"));
    QCOMPARE(inner->GetInt(QStringLiteral("inner")), 2);
    QCOMPARE(layout->GetInt(QStringLiteral("number")), 3);
    QCOMPARE(CfgCenter::GetAppCfg(7)->GetInt(QStringLiteral("number")), 4);
    QCOMPARE(CfgCenter::GetAdminCfg(SettingsView)->GetInt(QStringLiteral("number")), 5);

    settings->RemoveSubCfg(QStringLiteral("number"));
    settings->Remove(QStringLiteral("yes"));
    QVERIFY(!inner->Contains(QStringLiteral("inner")));
    QVERIFY(CfgCenter::Store());
    CfgCenter::LoadAll();
    QVERIFY(!settings->HasSubCfg(QStringLiteral("number")));
    QVERIFY(!settings->Contains(QStringLiteral("yes")));
    QVERIFY(settings->Contains(QStringLiteral("number")));
}

void TestCfgCenter::readsValuesOfOtherKinds_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("flag");
    const QString none = QStringLiteral("-");
    QTest::newRow("number") << QByteArray("12") << none << 12 << true;
    QTest::newRow("fraction") << QByteArray("1.5") << none << 7 << true;
    QTest::newRow("too large") << QByteArray("2147483648") << none << 7 << true;
    QTest::newRow("boolean") << QByteArray("false") << none << 7 << false;
    QTest::newRow("text of number")
        << QByteArray("\"-12\"") << QStringLiteral("-12") << -12 << true;
    QTest::newRow("text too large")
        << QByteArray("\"2147483648\"") << QStringLiteral("2147483648") << 7 << true;
    QTest::newRow("text of boolean")
        << QByteArray("\"False\"") << QStringLiteral("False") << 7 << false;
    QTest::newRow("list") << QByteArray("[1]") << none << 7 << true;
    QTest::newRow("null") << QByteArray("null") << none << 7 << true;
    QTest::newRow("object") << QByteArray("{\"a\": 1}") << none << 7 << true;
}

void TestCfgCenter::readsValuesOfOtherKinds()
{
    QFETCH(QByteArray, value);
    QVERIFY(writeFile(fileName, "{\"settings\": {\"key\": " + value + "}}"));
    const QString key = QStringLiteral("key");
    QTEST(settings->GetString(key, QStringLiteral("-")), "text");
    QTEST(settings->GetInt(key, 7), "number");
    QTEST(settings->GetBool(key, true), "flag");
}

void TestCfgCenter::keepsDamagedFilesAside_data()
{
    using Make = std::function<bool(const QString&)>;
    QTest::addColumn<Make>("make");
    const auto withText = [](const QByteArray& text) {
        return Make([text](const QString& name) { return writeFile(name, text); });
    };
    QTest::newRow("empty") << withText({});
    QTest::newRow("cut") << withText("{\"settings\": {\"key\": 1");
    QTest::newRow("list") << withText("[]");
    QTest::newRow("folder") << Make([](const QString& name) { return QDir().mkpath(name); });
    QTest::newRow("pipe") << Make([](const QString& name) {
        return QDir().mkpath(QFileInfo(name).path()) &&
               ::mkfifo(QFile::encodeName(name).constData(), 0600) == 0;
    });
    QTest::newRow("too large") << Make([](const QString& name) {
        return writeFile(name, "{") && QFile::resize(name, 100 * 1024 * 1024);
    });
}

void TestCfgCenter::keepsDamagedFilesAside()
{
    QFETCH(std::function<bool(const QString&)>, make);
    QVERIFY(make(fileName));
    const QFileInfo before(fileName);
    const QByteArray text = before.isFile() ? readFile(fileName) : QByteArray();
    expectTrace("test.json\" is damaged .* renamed to");
    QCOMPARE(settings->GetInt(QStringLiteral("key"), 7), 7);

    const QStringList aside =
        QDir(guard->configDir())
            .entryList({QStringLiteral("test.json.damaged-*")}, QDir::AllEntries | QDir::System);
    QCOMPARE(aside.size(), 1);
    const QFileInfo after(guard->configDir() + u'/' + aside.first());
    QCOMPARE(after.isDir(), before.isDir());
    QCOMPARE(after.isFile() ? readFile(after.filePath()) : QByteArray(), text);
    QVERIFY(!QFileInfo::exists(fileName));
    settings->SetInt(QStringLiteral("key"), 1);
    QVERIFY(CfgCenter::Store());
    CfgCenter::LoadAll();
    QCOMPARE(settings->GetInt(QStringLiteral("key")), 1);
}

void TestCfgCenter::keepsWhatItKnowsWhenTheFileGoesBad()
{
    settings->SetInt(QStringLiteral("old"), 1);
    QVERIFY(CfgCenter::Store());
    for (int round = 0; round < 2; ++round) { // both files are kept, even of the same second
        QVERIFY(writeFile(fileName, "damaged"));
        settings->SetInt(QStringLiteral("new"), round + 1);
        expectTrace("is damaged .* renamed to");
        QVERIFY(CfgCenter::Store());
        CfgCenter::LoadAll();
        QCOMPARE(settings->GetInt(QStringLiteral("old")), 1);
        QCOMPARE(settings->GetInt(QStringLiteral("new")), round + 1);
    }
    QCOMPARE(QDir(guard->configDir()).entryList({QStringLiteral("*.damaged-*")}).size(), 2);
}

void TestCfgCenter::keepsChangesThatCannotBeStored()
{
    // The folder is to be below a regular file, where not even an administrator can make one.
    QVERIFY(writeFile(guard->configDir(), "a file"));
    settings->SetInt(QStringLiteral("key"), 1);
    expectTrace("was not stored: the folder cannot be made");
    QVERIFY(!CfgCenter::Store());
    expectTrace("was not stored");
    CfgCenter::LoadAll();
    QCOMPARE(settings->GetInt(QStringLiteral("key")), 1);
    QCOMPARE(readFile(guard->configDir()), QByteArray("a file"));
    QVERIFY(QFile::remove(guard->configDir()));
    QVERIFY(CfgCenter::Store());
    QVERIFY(readFile(fileName).contains("\"key\": 1"));
}

void TestCfgCenter::mergesWithWhatOthersStored()
{
    settings->SetInt(QStringLiteral("a"), 1);
    settings->SetInt(QStringLiteral("b"), 1);
    QVERIFY(CfgCenter::Store());
    QVERIFY(writeFile(fileName, "{\"future\": [1], \"settings\": {\"a\": 2, \"c\": 2}}"));
    settings->SetInt(QStringLiteral("a"), 1); // not changed here, so the other one's stays
    settings->SetInt(QStringLiteral("d"), 3);
    QCOMPARE(settings->GetInt(QStringLiteral("a")), 1);
    QVERIFY(CfgCenter::Store());
    QCOMPARE(settings->GetInt(QStringLiteral("a")), 2);
    QCOMPARE(settings->GetKeys().join(u' '), QStringLiteral("a c d"));
    QVERIFY(readFile(fileName).contains("future"));
    // Nothing changed: nothing is written.
    const QByteArray odd = "{ }";
    QVERIFY(writeFile(fileName, odd));
    settings->SetInt(QStringLiteral("d"), 3);
    QVERIFY(CfgCenter::Store());
    QCOMPARE(readFile(fileName), odd);
}

void TestCfgCenter::storesByItself()
{
    CfgCenter::SetAutoStoreDelay(10);
    settings->SetInt(QStringLiteral("key"), 1);
    QVERIFY(!QFile::exists(fileName));
    QTRY_VERIFY(QFile::exists(fileName));

    // Changes that never pause do not keep it from storing.
    int number = 1;
    QTRY_VERIFY([&] {
        settings->SetInt(QStringLiteral("key"), ++number);
        return !readFile(fileName).contains("\"key\": 1\n");
    }());

    // While another process has the file it tries again.
    QTRY_VERIFY(readFile(fileName).contains("\"key\": " + QByteArray::number(number)));
    QLockFile lock(fileName + QStringLiteral(".lock"));
    QVERIFY(lock.lock());
    expectTrace("was not stored: another process");
    settings->SetInt(QStringLiteral("key"), -1);
    QTest::qWait(150);
    lock.unlock();
    QTRY_VERIFY(readFile(fileName).contains("\"key\": -1"));
    CfgCenter::SetAutoStoreDelay(-1);
}

void TestCfgCenter::storesBeforeItMoves()
{
    settings->SetInt(QStringLiteral("key"), 1);
    CfgCenter::SetConfigDir(guard->configDir() + QStringLiteral("/elsewhere"));
    QVERIFY(readFile(fileName).contains("\"key\": 1"));
    QVERIFY(!settings->Contains(QStringLiteral("key")));
    CfgCenter::SetConfigDir(guard->configDir());
    QCOMPARE(settings->GetInt(QStringLiteral("key")), 1);
    CfgCenter::SetAppName(QStringLiteral("other"));
    QVERIFY(!settings->Contains(QStringLiteral("key")));
    QVERIFY(CfgCenter::GetAppCfgFileName().endsWith(QLatin1String("/other.json")));
}

void TestCfgCenter::namesItsFile()
{
    CfgCenter::SetAppName(QStringLiteral("../a\\b"));
    QCOMPARE(CfgCenter::GetAppName(), QStringLiteral(".._a_b"));
    CfgCenter::SetAppName(QString());
    QCOMPARE(CfgCenter::GetAppName(), QStringLiteral("tst_cfgcenter"));
    CfgCenter::SetConfigDir(QString());
    QCOMPARE(CfgCenter::GetAppCfgFileName(),
             QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                 QStringLiteral("/tst_cfgcenter.json"));
}

void TestCfgCenter::callsComponents()
{
    std::unique_ptr<Component> victim;
    std::unique_ptr<Component> latecomer;
    Component first([&] {
        victim.reset();
        if (!latecomer)
            latecomer = std::make_unique<Component>();
    });
    victim = std::make_unique<Component>([] { QFAIL("called after its end"); });
    Component last([this] { settings->SetInt(QStringLiteral("key"), 1); });
    CfgCenter::RegisterSaveComponent(&last);
    CfgCenter::RegisterSaveComponent(nullptr);
    QVERIFY(CfgCenter::SaveAll());
    QVERIFY(readFile(fileName).contains("\"key\": 1"));
    QCOMPARE(latecomer->calls, QString());
    QVERIFY(CfgCenter::CommitAll());
    CfgCenter::UnregisterSaveComponent(&last);
    CfgCenter::UnregisterSaveComponent(&last);
    CfgCenter::LoadAll();
    QCOMPARE(first.calls, QStringLiteral("scl"));
    QCOMPARE(last.calls, QStringLiteral("sc"));
    QCOMPARE(latecomer->calls, QStringLiteral("cl"));
}

QTEST_GUILESS_MAIN(TestCfgCenter)
#include "tst_cfgcenter.moc"
