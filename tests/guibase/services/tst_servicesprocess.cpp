// SPDX-License-Identifier: MIT
#include "support/testguard.h"

#include <trovappstartup/cfgcenter.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class TestServicesProcess : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_guard.reset(); }
    void resolution_data();
    void resolution();
    void settingsSurvive_data();
    void settingsSurvive();

private:
    QString run(const QString& scenario);

    QTemporaryDir m_runtimeDir;
    std::unique_ptr<TestGuard> m_guard;
};

void TestServicesProcess::init()
{
    m_guard = std::make_unique<TestGuard>();
    CfgCenter::SetAppName(QStringLiteral("services"));
}

/// What the process told, or what it complained about.
QString TestServicesProcess::run(const QString& scenario)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtimeDir.path());
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(SERVICES_PROCESS), {scenario, m_guard->configDir()});
    if (!process.waitForFinished(60'000))
        return QStringLiteral("The process does not end");
    const QString complaint = QString::fromLocal8Bit(process.readAllStandardError());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return QStringLiteral("Exit %1: %2").arg(process.exitCode()).arg(complaint);
    return QString::fromLocal8Bit(process.readAllStandardOutput()) + complaint;
}

void TestServicesProcess::resolution_data()
{
    QTest::addColumn<QString>("configured");
    QTest::addColumn<int>("resolution");
    QTest::newRow("default") << QString() << 1;
    QTest::newRow("none") << QStringLiteral("0") << 0;
    QTest::newRow("kilo") << QStringLiteral("2") << 2;
    QTest::newRow("giga") << QStringLiteral("4") << 4;
    QTest::newRow("too high") << QStringLiteral("5") << 1;
    QTest::newRow("negative") << QStringLiteral("-1") << 1;
    QTest::newRow("no number") << QStringLiteral("kHz") << 1;
}

void TestServicesProcess::resolution()
{
    QFETCH(QString, configured);
    QFETCH(int, resolution);
    if (!configured.isEmpty()) {
        CfgCenter::GetAppCfg(SettingsView)
            ->OpenSubCfg(QStringLiteral("GuiBase"))
            ->SetString(QStringLiteral("FrequencyResolution"), configured);
        QVERIFY(CfgCenter::Store());
    }
    QCOMPARE(run(QStringLiteral("early")),
             QStringLiteral("resolution=%1\nfont=1\n").arg(resolution));
}

void TestServicesProcess::settingsSurvive_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::newRow("main window closed") << QStringLiteral("close");
    QTest::newRow("main window deleted") << QStringLiteral("delete");
}

void TestServicesProcess::settingsSurvive()
{
    QFETCH(QString, scenario);
    ICfg* cfg = CfgCenter::GetAppCfg(SettingsView);
    cfg->OpenSubCfg(QStringLiteral("Startup"))->SetInt(QStringLiteral("SplashTimeout"), 3600);
    cfg->SetString(QStringLiteral("Language"), QStringLiteral("de"));
    QVERIFY(CfgCenter::Store());
    const QString first = run(scenario);
    QVERIFY2(first.startsWith(QStringLiteral("zone=1\nwidth=")), qPrintable(first));
    const int width = QStringView(first).mid(13).trimmed().toInt();
    QVERIFY(width > 0);
    QCOMPARE(run(scenario), QStringLiteral("zone=0\nwidth=%1\n").arg(width + 11));
}

QTEST_MAIN(TestServicesProcess)
#include "tst_servicesprocess.moc"
