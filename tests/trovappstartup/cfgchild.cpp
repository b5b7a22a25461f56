// SPDX-License-Identifier: MIT
// The program that the tests of whole processes start: cfgchild <task> <configuration folder> [...]
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/savecomponentif.h>
#include <trovappstartup/trovapplication.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDeadlineTimer>
#include <QLockFile>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>

#include <csignal>
#include <cstdio>
#include <memory>
#include <optional>

#include <unistd.h>

namespace {

void say(const char* line)
{
    std::printf("%s\n", line);
    std::fflush(stdout);
}

ICfg* settings()
{
    return CfgCenter::GetAppCfg(SettingsView);
}

void increment(const QString& key)
{
    settings()->SetInt(key, settings()->GetInt(key) + 1);
}

/// A service with static storage, as the libraries have them: it goes after main().
class Service : public SaveComponentIf, public IAbstractTerminationTarget
{
public:
    static Service& instance()
    {
        static Service service;
        return service;
    }
    void Save() override { increment(QStringLiteral("saves")); }
    void Load() override {}
    void CommitData() override {}
    void aboutToTerminate() override
    {
        increment(QStringLiteral("terminations"));
        say("terminating");
        while (isStubborn)
            ::pause();
    }
    bool isStubborn = false;

private:
    Service() { CfgCenter::RegisterSaveComponent(this); }
    ~Service() override { settings()->SetString(QStringLiteral("late"), QStringLiteral("late")); }
};

class StubbornWindow : public QWidget
{
protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

/// Sets values of its own, one a store. Where the disk is slow, the others hold the lock for so
/// long that a store is refused: it is asked for again, as applications do.
int writeKeys(const QString& name, int count)
{
    const QDeadlineTimer deadline(std::chrono::seconds(30));
    for (int i = 0; i < count; ++i) {
        settings()->SetInt(name + QString::number(i), i);
        while (!CfgCenter::Store())
            if (deadline.hasExpired())
                return 1;
    }
    return 0;
}

int storeForEver()
{
    for (int i = 0;; ++i) {
        settings()->SetInt(QStringLiteral("count"), i);
        settings()->SetString(QStringLiteral("text"), QString(20000 + i % 7000, u'x'));
        CfgCenter::Store();
        if (i == 1)
            say("storing");
    }
}

int holdLock()
{
    QLockFile lock(CfgCenter::GetAppCfgFileName() + QStringLiteral(".lock"));
    say(lock.lock() ? "locked" : "failed");
    return ::pause();
}

/// Asks itself to end before the event loop runs, and changes something afterwards.
void requestEarlyEnd(const QString& task)
{
    TrovApplication::SetGracePeriod(300);
    if (task.contains(QLatin1String("dialog"))) {
        QMessageBox question(QMessageBox::Question, {}, {}, QMessageBox::Ok);
        if (task.contains(QLatin1String("without escape")))
            question.addButton(QMessageBox::Retry); // then closing it is refused
        QTimer::singleShot(0, &question, [] { ::raise(SIGTERM); });
        question.exec();
        return;
    }
    ::raise(SIGTERM);
    if (task.contains(QLatin1String("twice")))
        ::raise(SIGTERM);
    QCoreApplication::processEvents();
    settings()->SetString(QStringLiteral("text"), QStringLiteral("unsaved"));
    while (task.contains(QLatin1String("own loop")))
        QCoreApplication::processEvents();
}

int runApplication(const QString& task, int& argc, char** argv)
{
    std::optional<TrovApplication> startup; // declared first, it may outlive the application object
    std::unique_ptr<QCoreApplication> application;
    if (task.contains(QLatin1String("console")))
        application = std::make_unique<QCoreApplication>(argc, argv);
    else
        application = std::make_unique<QApplication>(argc, argv);
    startup.emplace();
    startup->ShowSplash();
    startup->SplashBusy();
    Service::instance().isStubborn = task.contains(QLatin1String("stubborn-service"));
    std::unique_ptr<QWidget> window;
    if (task.contains(QLatin1String("stubborn-window"))) {
        window = std::make_unique<StubbornWindow>();
        window->show();
    }
    if (task.contains(QLatin1String("early")))
        requestEarlyEnd(task);
    settings()->SetString(QStringLiteral("text"), QStringLiteral("unsaved"));
    if (task.contains(QLatin1String("late")))
        return 0;
    int code = 0;
    if (!task.contains(QLatin1String("return"))) {
        QTimer::singleShot(0, application.get(), [] { say("running"); });
        code = QCoreApplication::exec();
    }
    startup.reset();
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return 2;
    const QString task = QString::fromLocal8Bit(argv[1]);
    // Before there is an application object, as early services do it.
    CfgCenter::SetAppName(QStringLiteral("child"));
    CfgCenter::SetConfigDir(QString::fromLocal8Bit(argv[2]));
    if (task == QLatin1String("write") && argc > 4)
        return writeKeys(QString::fromLocal8Bit(argv[3]), QByteArray(argv[4]).toInt());
    if (task == QLatin1String("store-forever"))
        return storeForEver();
    if (task == QLatin1String("lock"))
        return holdLock();
    return runApplication(task, argc, argv);
}
