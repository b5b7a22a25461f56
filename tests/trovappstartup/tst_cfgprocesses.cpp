// SPDX-License-Identifier: MIT
#include "support/childprocess.h"
#include "support/files.h"
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <trovappstartup/cfgcenter.h>

#include <QDir>

#include <csignal>
#include <vector>

/// What becomes of the configuration when several processes use it, and when they die.
class tst_CfgProcesses : public GuardedTest
{
    Q_OBJECT
    using Ends = TestRows<int>;

private Q_SLOTS:
    void losesNothingOfManyWriters()
    {
        constexpr int count = 15;
        std::vector<std::unique_ptr<ChildProcess>> children;
        for (const QChar name : QStringLiteral("abcd"))
            children.push_back(start(QStringLiteral("write"), {name, QString::number(count)}));
        for (const auto& child : children)
            QCOMPARE(child->waitForEnd(), 0);
        CfgCenter::LoadAll();
        QCOMPARE(settings->GetKeys().size(), 4 * count);
    }
    void isWholeAfterAnyKill()
    {
        RandomBytes random("isWholeAfterAnyKill");
        int last = -1;
        for (int round = RandomBytes::rounds(12); round > 0; --round) {
            const auto child = start(QStringLiteral("store-forever"));
            QVERIFY2(child->waitForLine("storing"), child->output());
            QTest::qSleep(random.below(80)); // the moment of the kill is what varies
            QVERIFY(child->send(SIGKILL));
            QCOMPARE(child->waitForEnd(), -SIGKILL);
            CfgCenter::LoadAll();
            QVERIFY(QDir(configDir()).entryList({QStringLiteral("*damaged*")}).isEmpty());
            const int now = settings->GetInt(QStringLiteral("count"), -1);
            QVERIFY(now >= 0);
            QCOMPARE(settings->GetString(QStringLiteral("text")).size(), 20000 + now % 7000);
            last = std::max(last, now);
        }
        QVERIFY(last > 0);
    }
    void takesOverTheLockOfADeadProcess()
    {
        QVERIFY(QDir().mkpath(configDir()));
        const auto child = start(QStringLiteral("lock"));
        QVERIFY(child->waitForLine("locked"));
        settings->SetInt(QStringLiteral("value"), 1);
        expectTrace("not stored: another process");
        QVERIFY(!CfgCenter::Store());
        QVERIFY(child->send(SIGKILL));
        QCOMPARE(child->waitForEnd(), -SIGKILL);
        QVERIFY(CfgCenter::Store());
        CfgCenter::LoadAll();
        QCOMPARE(settings->GetInt(QStringLiteral("value")), 1);

        // A process that died before it had written anything into its lock file.
        QVERIFY(writeFile(CfgCenter::GetAppCfgFileName() + QStringLiteral(".lock"), {}));
        settings->SetInt(QStringLiteral("value"), 2);
        QVERIFY(CfgCenter::Store());
    }
    void savesOnceAtTheEnd_data()
    {
        Ends row;
        for (const char* task : {"console", "stubborn-window"})
            row(task, SIGTERM);
        row("console, interrupted", SIGINT);
        row("console, terminal closed", SIGHUP);
        for (const char* task : {"console, return", "window, late end of the start-up object"})
            row(task, 0);
        // The end is requested, by the program itself, before its event loop runs.
        for (const char* task : {"console, early", "console, early, asked twice",
                                 "stubborn-window, early", "window, early, dialog",
                                 "window, early, dialog without escape", "window, early, own loop"})
            row(task, 0);
    }
    void savesOnceAtTheEnd()
    {
        const int signalNumber = std::get<0>(Ends::fetch());
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
    void secondSignalEndsAtOnce()
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

private:
    std::unique_ptr<ChildProcess> start(const QString& task, const QStringList& more = {})
    {
        return std::make_unique<ChildProcess>(QStringLiteral(CFGCHILD),
                                              QStringList{task, configDir()} + more);
    }

    void prepare() override
    {
        CfgCenter::SetAppName(QStringLiteral("child"));
        settings = CfgCenter::GetAppCfg(SettingsView);
    }
    ICfg* settings = nullptr;
};

QTEST_GUILESS_MAIN(tst_CfgProcesses)
#include "tst_cfgprocesses.moc"
