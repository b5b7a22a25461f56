// SPDX-License-Identifier: MIT
#include "support/childprocess.h"
#include "support/randombytes.h"
#include "support/testguard.h"

#include <trovappstartup/cfgcenter.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <memory>
#include <vector>

/// What becomes of the configuration when several processes use it, and when they die.
class TestCfgProcesses : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void losesNothingOfManyWriters();
    void isWholeAfterAnyKill();
    void takesOverTheLockOfADeadProcess();
    void staysWholeOnAFullDisk();
    void savesOnceAtTheEnd_data();
    void savesOnceAtTheEnd();
    void secondSignalEndsAtOnce();

private:
    std::unique_ptr<ChildProcess> start(const QString& task, const QStringList& more = {})
    {
        return std::make_unique<ChildProcess>(QStringLiteral(CFGCHILD),
                                              QStringList{task, guard->configDir()} + more);
    }

    std::unique_ptr<TestGuard> guard;
    ICfg* settings = nullptr;
};

void TestCfgProcesses::init()
{
    guard = std::make_unique<TestGuard>();
    CfgCenter::SetAppName(QStringLiteral("child"));
    settings = CfgCenter::GetAppCfg(SettingsView);
}

void TestCfgProcesses::cleanup()
{
    QCOMPARE(guard->finish(), QString());
    guard.reset();
}

void TestCfgProcesses::losesNothingOfManyWriters()
{
    constexpr int count = 40;
    std::vector<std::unique_ptr<ChildProcess>> children;
    for (const QString& name : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")})
        children.push_back(start(QStringLiteral("write"), {name, QString::number(count)}));
    for (int i = 0; i < count; ++i) {
        settings->SetInt(QStringLiteral("mine%1").arg(i), i);
        QVERIFY(CfgCenter::Store());
    }
    for (const auto& child : children) {
        const int code = child->waitForEnd();
        QVERIFY2(code == 0, child->output());
    }
    CfgCenter::LoadAll();
    QCOMPARE(settings->GetKeys().size(), 4 * count);
}

void TestCfgProcesses::isWholeAfterAnyKill()
{
    RandomBytes random("isWholeAfterAnyKill");
    int last = -1;
    for (int round = RandomBytes::rounds(30); round > 0; --round) {
        const auto child = start(QStringLiteral("store-forever"));
        QVERIFY2(child->waitForLine("storing"), child->output());
        QTest::qSleep(random.below(80)); // the moment of the kill is what varies
        QVERIFY(child->send(SIGKILL));
        QCOMPARE(child->waitForEnd(), -SIGKILL);
        CfgCenter::LoadAll();
        QVERIFY(QDir(guard->configDir()).entryList({QStringLiteral("*damaged*")}).isEmpty());
        const int now = settings->GetInt(QStringLiteral("count"), -1);
        QVERIFY(now >= 0);
        QCOMPARE(settings->GetString(QStringLiteral("text")).size(), 20000 + now % 7000);
        last = std::max(last, now);
    }
    QVERIFY(last > 0);
}

void TestCfgProcesses::takesOverTheLockOfADeadProcess()
{
    QVERIFY(QDir().mkpath(guard->configDir()));
    const auto child = start(QStringLiteral("lock"));
    QVERIFY2(child->waitForLine("locked"), child->output());
    settings->SetInt(QStringLiteral("value"), 1);
    QTest::ignoreMessage(QtInfoMsg,
                         QRegularExpression(QStringLiteral("not stored: another process")));
    QVERIFY(!CfgCenter::Store());
    QCOMPARE(settings->GetInt(QStringLiteral("value")), 1);
    QVERIFY(child->send(SIGKILL));
    QCOMPARE(child->waitForEnd(), -SIGKILL);
    QVERIFY(CfgCenter::Store());
    CfgCenter::LoadAll();
    QCOMPARE(settings->GetInt(QStringLiteral("value")), 1);

    // A process that died before it had written anything into its lock file.
    QFile lockFile(CfgCenter::GetAppCfgFileName() + QStringLiteral(".lock"));
    QVERIFY(lockFile.open(QIODevice::WriteOnly));
    lockFile.close();
    settings->SetInt(QStringLiteral("value"), 2);
    QVERIFY(CfgCenter::Store());
}

void TestCfgProcesses::staysWholeOnAFullDisk()
{
    settings->SetString(QStringLiteral("other"), QString(2000, u'o'));
    QVERIFY(CfgCenter::Store());
    const auto child = start(QStringLiteral("full"));
    const int code = child->waitForEnd();
    QVERIFY2(code == 0, child->output());
    QVERIFY2(child->output().contains("not all of it could be written"), child->output());
    CfgCenter::LoadAll();
    QCOMPARE(settings->GetString(QStringLiteral("other")), QString(2000, u'o'));
    QCOMPARE(settings->GetString(QStringLiteral("text")), QStringLiteral("small"));
}

void TestCfgProcesses::savesOnceAtTheEnd_data()
{
    QTest::addColumn<int>("signalNumber");
    for (const char* task : {"console", "window", "stubborn-window"})
        QTest::newRow(task) << SIGTERM;
    QTest::newRow("console, interrupted") << SIGINT;
    QTest::newRow("console, terminal closed") << SIGHUP;
    QTest::newRow("console, return without event loop") << 0;
    QTest::newRow("window, return without event loop") << 0;
    QTest::newRow("window, late end of the start-up object") << 0;
}

void TestCfgProcesses::savesOnceAtTheEnd()
{
    QFETCH(int, signalNumber);
    const auto child = start(QString::fromLatin1(QTest::currentDataTag()));
    if (signalNumber != 0) {
        QVERIFY2(child->waitForLine("running"), child->output());
        QVERIFY(child->send(signalNumber));
    }
    const int code = child->waitForEnd();
    QVERIFY2(code == 0, child->output());
    CfgCenter::LoadAll();
    QCOMPARE(settings->GetString(QStringLiteral("text")), QStringLiteral("unsaved"));
    QCOMPARE(settings->GetInt(QStringLiteral("saves")), 1);
    QCOMPARE(settings->GetInt(QStringLiteral("terminations")), 1);
    QCOMPARE(child->output().count("terminating"), 1);
}

void TestCfgProcesses::secondSignalEndsAtOnce()
{
    const auto child = start(QStringLiteral("console, stubborn-service"));
    QVERIFY2(child->waitForLine("running"), child->output());
    QVERIFY(child->send(SIGTERM));
    QVERIFY2(child->waitForLine("terminating"), child->output());
    QVERIFY(child->send(SIGINT));
    QCOMPARE(child->waitForEnd(), -SIGINT);
    // Saved before the service had its say.
    CfgCenter::LoadAll();
    QCOMPARE(settings->GetString(QStringLiteral("text")), QStringLiteral("unsaved"));
    QCOMPARE(settings->GetInt(QStringLiteral("saves")), 1);
}

QTEST_GUILESS_MAIN(TestCfgProcesses)
#include "tst_cfgprocesses.moc"
