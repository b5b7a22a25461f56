// SPDX-License-Identifier: MIT
// From the start of a process to the first frame of its window: bandmonitor ("ours") beside a plain
// main window ("theirs"). Each side is a process of its own; ours is this program with a folder for
// the settings on its command line.
#include "endatfirstframe.h"
#include "ratio.h"

#include "mainwindow.h"
#include "signalnotifier.h"

#include <guibase/services/guibase.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr char windowOption[] = "--window";

int showWindow(int argc, char** argv, const QString& folder)
{
    CfgCenter::SetAppName(QStringLiteral("bandmonitor"));
    CfgCenter::SetConfigDir(folder);
    QApplication application(argc, argv);
    TrovApplication startUp;
    GuiBase& services = GuiBase::Instance();
    services.SetApplication(&application);
    bandmonitor::MainWindow window;
    new EndAtFirstFrame(&window);
    services.SetMainWidget(&window);
    window.announceModes();
    new bandmonitor::SignalNotifier(&window);
    window.show();
    return QApplication::exec();
}

RatioRun::Body start(const QString& program, const QStringList& arguments)
{
    return [program, arguments](benchmark::State& state) {
        for (auto _ : state) {
            if (QProcess::execute(program, arguments) != 0)
                state.SkipWithError("The window has not come");
        }
    };
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 3 && qstrcmp(argv[1], windowOption) == 0)
        return showWindow(argc, argv, QString::fromLocal8Bit(argv[2]));
    qputenv("QT_LOGGING_RULES", "*=false");
    const QTemporaryDir folder;
    const QCoreApplication application(argc, argv);
    RatioRun run;
    run.compare("From start to the first frame", 2,
                start(QCoreApplication::applicationFilePath(),
                      {QLatin1String(windowOption), folder.path()}),
                start(QStringLiteral(PLAINWINDOW), {}), RatioRun::Clock::Wall);
    return run.run(argc, argv);
}
