// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/savecomponentif.h>
#include <trovappstartup/trovapplication.h>

#include <QApplication>
#include <QDateTime>
#include <QTimer>
#include <QWidget>

#include <csignal>
#include <functional>

namespace {

struct Target : IAbstractTerminationTarget
{
    explicit Target(std::function<void()> function)
        : action(std::move(function))
    {}
    void aboutToTerminate() override { action(); }
    const std::function<void()> action;
};

struct Component : SaveComponentIf
{
    Component() { CfgCenter::RegisterSaveComponent(this); }
    void Save() override { saved(); }
    void Load() override {}
    void CommitData() override {}
    std::function<void()> saved;
};

QWidget* splashScreen()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QSplashScreen"))
            return widget;
    }
    return nullptr;
}

auto handlerOf(int signalNumber)
{
    struct sigaction action = {};
    ::sigaction(signalNumber, nullptr, &action);
    return action.sa_handler;
}

} // namespace

class tst_TrovApplication : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void showsTheSplashScreen()
    {
        TrovApplication application;
        QCOMPARE(TrovApplication::m_pThis, &application);
        application.Write2Splash(QStringLiteral("nowhere"));
        application.SplashBusy();
        application.HideSplash();
        const qint64 before = QDateTime::currentSecsSinceEpoch();
        application.ShowSplash();
        QVERIFY(application.SplashShowTime() >= before);
        const auto picture = [] { return splashScreen()->grab().toImage(); };
        const QImage plain = picture();
        application.Write2Splash(QStringLiteral("Loading"));
        const QImage withText = picture();
        QVERIFY(withText != plain);
        application.SplashBusy();
        const QImage busy = picture();
        QVERIFY(busy != withText);
        application.SplashBusy();
        QVERIFY(picture() != busy);
        application.ShowSplash(QPixmap(64, 48));
        QCOMPARE(splashScreen()->size(), QSize(64, 48));
        application.HideSplash();
        QVERIFY(splashScreen() == nullptr);
    }
    void survivesHidingWhilePainting()
    {
        TrovApplication application;
        application.ShowSplash();
        QTimer::singleShot(0, &application, [&] {
            application.Write2Splash(QStringLiteral("inner"));
            application.HideSplash();
        });
        for (int i = 0; i < 100 && application.IsSplashVisible(); ++i)
            application.Write2Splash(QString::number(i));
        QVERIFY(splashScreen() == nullptr);
    }
    void terminatesOnceInOrder()
    {
        QString log;
        auto application = std::make_unique<TrovApplication>();
        application->ShowSplash();
        Component component;
        component.saved = [&log] { log += QStringLiteral("save "); };
        std::unique_ptr<Target> victim;
        std::unique_ptr<Target> latecomer;
        const Target first([&] {
            log += QStringLiteral("first ");
            application->Terminate();
            victim.reset();
            latecomer = std::make_unique<Target>([&] { log += QStringLiteral("latecomer "); });
        });
        victim = std::make_unique<Target>([&] { log += QStringLiteral("victim "); });
        const Target second([&] {
            log += QStringLiteral("second ");
            CfgCenter::GetAppCfg(SettingsView)->SetInt(QStringLiteral("key"), 1);
        });
        QTimer::singleShot(0, application.get(), [] { QCoreApplication::exit(3); });
        QCOMPARE(QCoreApplication::exec(), 3);
        QVERIFY(application->IsTerminated());
        QVERIFY(!application->IsSplashVisible());
        CfgCenter::LoadAll();
        ICfg* const settings = CfgCenter::GetAppCfg(SettingsView);
        QCOMPARE(settings->GetInt(QStringLiteral("key")), 1);
        settings->SetInt(QStringLiteral("key"), 2); // stored with the end of the start-up object
        application->Terminate();
        application.reset();
        QCOMPARE(log, QStringLiteral("save first second latecomer "));
        CfgCenter::LoadAll();
        QCOMPARE(settings->GetInt(QStringLiteral("key")), 2);
        QVERIFY(TrovApplication::m_pThis == nullptr);
    }
    void bringsSignalHandlingBack()
    {
        const auto former = handlerOf(SIGTERM);
        std::signal(SIGHUP, SIG_IGN);
        {
            const TrovApplication application;
            QVERIFY(handlerOf(SIGTERM) != former);
            QVERIFY(handlerOf(SIGHUP) == SIG_IGN);  // started so as to survive its terminal
            QVERIFY(handlerOf(SIGXFSZ) == SIG_IGN); // a file that is full is no reason to end
        }
        QVERIFY(handlerOf(SIGXFSZ) == SIG_DFL);
        QVERIFY(handlerOf(SIGTERM) == former);
        std::signal(SIGHUP, SIG_DFL);
    }
};

QTEST_MAIN(tst_TrovApplication)
#include "tst_trovapplication.moc"
