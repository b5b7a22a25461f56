// SPDX-License-Identifier: MIT
#include "support/childprocess.h"
#include "support/guardedtest.h"

#include <trovappstartup/cfgcenter.h>

#include <QFile>
#include <QTemporaryDir>

class tst_ServicesProcess : public GuardedTest
{
    Q_OBJECT
    using Resolutions = TestRows<QString, int>;

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtimeDir.path())); }
    void resolution_data()
    {
        Resolutions row;
        row("default", "", 1);
        row("none", "0", 0);
        row("giga", "4", 4);
        row("too high", "5", 1);
        row("negative", "-1", 1);
        row("no number", "kHz", 1);
    }
    void resolution()
    {
        const auto& [configured, resolution] = Resolutions::fetch();
        if (!configured.isEmpty()) {
            CfgCenter::GetAppCfg(SettingsView)
                ->OpenSubCfg(QStringLiteral("GuiBase"))
                ->SetString(QStringLiteral("FrequencyResolution"), configured);
            QVERIFY(CfgCenter::Store());
        }
        QCOMPARE(run("early"), QStringLiteral("resolution=%1\nfont=1\n").arg(resolution));
    }
    void settingsSurvive_data()
    {
        TestRows<const char*> row;
        row("main window closed", "close");
        row("main window closed, two applications in one process", "close twice");
        row("main window deleted", "delete");
        row("main window deleted, another one refuses to close", "delete, stubborn");
    }
    void settingsSurvive()
    {
        const char* scenario = std::get<0>(TestRows<const char*>::fetch());
        ICfg* cfg = CfgCenter::GetAppCfg(SettingsView);
        cfg->OpenSubCfg(QStringLiteral("Startup"))->SetInt(QStringLiteral("SplashTimeout"), 3600);
        cfg->SetString(QStringLiteral("Language"), QStringLiteral("de"));
        QVERIFY(CfgCenter::Store());
        QString told = run(scenario);
        told += run(scenario);
        const QStringList sessions = told.split(QStringLiteral("zone="), Qt::SkipEmptyParts);
        int width = sessions.first().section(u'=', 1).toInt() - 11;
        QVERIFY2(sessions.size() > 1 && width > 0, qPrintable(told));
        QString expected;
        for (int i = 0; i < sessions.size(); ++i)
            expected += QStringLiteral("zone=%1\nwidth=%2\n").arg(i == 0 ? 1 : 0).arg(width += 11);
        QCOMPARE(told, expected);
    }

private:
    void prepare() override { CfgCenter::SetAppName(QStringLiteral("services")); }
    /// What the process told and what it complained about, with the exit code when it failed.
    QString run(const char* scenario)
    {
        ChildProcess process(QStringLiteral(SERVICES_PROCESS),
                             {QString::fromLatin1(scenario), configDir()});
        const int code = process.waitForEnd();
        const QString told = QString::fromLocal8Bit(process.output());
        return code == 0 ? told : QStringLiteral("Exit %1: %2").arg(code).arg(told);
    }

    QTemporaryDir m_runtimeDir;
};

QTEST_MAIN(tst_ServicesProcess)
#include "tst_servicesprocess.moc"
