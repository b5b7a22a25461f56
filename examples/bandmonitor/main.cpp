// SPDX-License-Identifier: MIT
#include "commandline.h"
#include "mainwindow.h"
#include "model/samplegenerator.h"
#include "shots.h"

#include <guibase/services/guibase.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QApplication>

#include <cstdio>

using namespace bandmonitor;

namespace {

/// The command line is read before there is a QApplication, so that help, version and mistakes are
/// answered without a display.
CommandLine readCommandLine(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    return parseCommandLine(QCoreApplication::arguments());
}

void print(std::FILE* stream, const QString& text)
{
    std::fputs(text.toLocal8Bit().constData(), stream);
    std::fflush(stream);
}

void printError(const QString& text)
{
    print(stderr, QStringLiteral("bandmonitor: %1\n").arg(text.simplified()));
}

bool hasDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

/// What follows once the recording of the start is open.
void goOn(MainWindow& window, const CommandLine& commandLine)
{
    if (commandLine.replayFactor) {
        window.replay().setSpeed(*commandLine.replayFactor);
        if (commandLine.shotsFolder.isEmpty())
            window.replay().play();
    }
    if (commandLine.shotsFolder.isEmpty())
        return;
    ShotSeries shots(window, commandLine.shotsFolder);
    const bool done = shots.run();
    if (!done)
        printError(QApplication::translate("main", "The picture \"%1\" cannot be written.")
                       .arg(shots.failure()));
    QCoreApplication::exit(done ? 0 : 1);
}

int run(int argc, char** argv, const CommandLine& commandLine)
{
    QApplication application(argc, argv);
    TrovApplication startUp;
    startUp.ShowSplash();
    startUp.Write2Splash(QApplication::translate("main", "Reading settings…"));
    GuiBase& services = GuiBase::Instance();
    services.SetApplication(&application);

    MainWindow window;
    services.SetMainWidget(&window);
    window.announceModes();
    window.show();
    services.Write2Splash(QApplication::translate("main", "Opening the recording…"));
    const auto failed =
        QObject::connect(&window, &MainWindow::openFailed, &window, [](const QString& text) {
            printError(text);
            QCoreApplication::exit(1);
        });
    QObject::connect(
        &window, &MainWindow::recordingOpened, &window,
        [&window, &commandLine, failed] {
            QObject::disconnect(failed);
            goOn(window, commandLine);
        },
        Qt::SingleShotConnection);
    window.open(commandLine.file.isEmpty() ? samplePath() : commandLine.file,
                MainWindow::OnFailure::Tell);
    services.HideSplash();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("bandmonitor"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BANDMONITOR_VERSION));
    const CommandLine commandLine = readCommandLine(argc, argv);
    if (commandLine.action != CommandLine::Run) {
        const bool failed = commandLine.action == CommandLine::Fail;
        print(failed ? stderr : stdout, commandLine.text);
        return failed ? 1 : 0;
    }
    if (!hasDisplay()) {
        if (commandLine.shotsFolder.isEmpty()) {
            printError(QStringLiteral("There is no display to show the window on."));
            return 1;
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    CfgCenter::SetAppName(QStringLiteral("bandmonitor"));
    if (commandLine.shotsFolder.isEmpty()) {
        CfgCenter::SetConfigDir(commandLine.configFolder);
        return run(argc, argv, commandLine);
    }
    const ShotEnvironment environment(commandLine.shotsFolder, commandLine.configFolder);
    return run(argc, argv, commandLine);
}
