// SPDX-License-Identifier: MIT
#include "commandline.h"
#include "dialogcloser.h"
#include "firstframe.h"
#include "live/descriptorsource.h"
#include "live/followedfile.h"
#include "mainwindow.h"
#include "model/samplegenerator.h"
#include "panels/icons.h"
#include "screenshots.h"
#include "signalnotifier.h"
#include "traystatus.h"

#include <guibase/services/guibase.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/translationcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QApplication>
#include <QLocale>
#include <QRegularExpression>

#include <cstdio>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

using namespace bandmonitor;

namespace {

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

/// Of a program that is started with one of its standard streams closed, the next file that it
/// opens would become that stream, and `-` would read from it.
void openStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) < 0)
            ::open("/dev/null", O_RDWR); // takes the lowest free number
    }
}

/// The command line is read before there is a QApplication, so that help, version and mistakes are
/// answered without a display. That is done in its own language, or in the desktop's: the
/// configuration is not opened for it.
CommandLine readCommandLine(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    TranslationCenter& center = TranslationCenter::Instance();
    center.SetLanguage(QStringLiteral("system"));
    center.Init();
    const QStringList arguments = QCoreApplication::arguments();
    CommandLine commandLine = parseCommandLine(arguments);
    if (!commandLine.language.isEmpty()) {
        center.SetLanguage(commandLine.language);
        center.Init();
        commandLine = parseCommandLine(arguments);
    }
    const bool needsDisplay =
        commandLine.action == CommandLine::Run && !commandLine.takesPictures() &&
        arguments.indexOf(QRegularExpression(QStringLiteral("--?platform"))) < 0;
    if (needsDisplay && !hasDisplay())
        return failure(QApplication::translate("main", "There is no display for the window."));
    return commandLine;
}

/// Pictures are made in English, wherever they are made, unless the command line names a language.
void chooseLanguage(const CommandLine& commandLine)
{
    const bool isEnglish = commandLine.takesPictures() && commandLine.language.isEmpty();
    TranslationCenter& center = TranslationCenter::Instance();
    center.SetDefaultLanguage(QStringLiteral("system"));
    center.SetLanguage(isEnglish ? QStringLiteral("en") : commandLine.language);
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

/// Does what the command line asks for, once the recording is open. `dialogs` is null unless it
/// asks for pictures.
void serve(const CommandLine& commandLine, MainWindow& window, DialogCloser* dialogs)
{
    Replay& replay = window.session().replay();
    if (commandLine.replayFactor)
        replay.setSpeed(*commandLine.replayFactor);
    if (dialogs == nullptr) {
        if (commandLine.replayFactor)
            replay.play();
        return;
    }
    ScreenshotSeries screenshots(window, *dialogs, commandLine.screenshotsFolder);
    const bool done = screenshots.run();
    if (!done)
        printError(QApplication::translate("main", "The picture \"%1\" cannot be written.")
                       .arg(screenshots.failure()));
    QCoreApplication::exit(done ? 0 : 1);
}

/// Null for a recording.
std::unique_ptr<LiveSource> liveSource(const CommandLine& commandLine)
{
    switch (commandLine.live) {
    case CommandLine::StandardInput:
        return DescriptorSource::standardInput();
    case CommandLine::Fifo:
        return std::make_unique<DescriptorSource>(commandLine.file);
    case CommandLine::FollowedFile:
        return std::make_unique<FollowedFile>(commandLine.file);
    case CommandLine::None:
        break;
    }
    return nullptr;
}

/// Opens what the command line names. When it fails before anything of it was shown, the program
/// ends, unless the window shall tell. A run that takes pictures ends also when it fails later: it
/// would wait for ever.
void open(const CommandLine& commandLine, MainWindow& window)
{
    const auto onFailure = commandLine.tellsInWindow ? MainWindow::OnFailure::ShowMessage
                                                     : MainWindow::OnFailure::Tell;
    auto* guard = new QObject(&window);
    QObject::connect(&window, &MainWindow::notOpened, guard,
                     [onFailure](const QString& text, MainWindow::OnFailure how) {
                         if (how != onFailure)
                             return; // of a file that was opened later, such as for a picture
                         printError(text);
                         if (how == MainWindow::OnFailure::Tell)
                             QCoreApplication::exit(1);
                     });
    if (!commandLine.takesPictures())
        QObject::connect(&window.session(), &Session::begun, guard, &QObject::deleteLater);
    if (commandLine.historyMegabytes)
        window.setHistory(static_cast<std::size_t>(*commandLine.historyMegabytes) << 20);
    if (std::unique_ptr<LiveSource> source = liveSource(commandLine))
        window.openLive(std::move(source), onFailure);
    else
        window.open(commandLine.file.isEmpty() ? samplePath() : commandLine.file, onFailure);
    if (commandLine.fileProblem.isEmpty())
        return;
    printError(commandLine.fileProblem);
    window.showMessage(QApplication::translate("main", "Recording not opened"),
                       commandLine.fileProblem, {});
}

int run(int argc, char** argv, const CommandLine& commandLine)
{
    TrovApplication::ChooseWindowSystem();
    QApplication application(argc, argv);
    QApplication::setWindowIcon(
        QIcon::fromTheme(QStringLiteral("bandmonitor"), makeIcon(Icon::Signals)));
    TrovApplication startUp;
    // The settings may already give reason for a question.
    std::unique_ptr<DialogCloser> dialogs;
    if (commandLine.takesPictures()) {
        dialogs = std::make_unique<DialogCloser>();
        QObject::connect(dialogs.get(), &DialogCloser::closedUnexpectedly, &printError);
    }
    chooseLanguage(commandLine);
    GuiBase& services = GuiBase::Instance();
    services.SetApplication(&application);
    // Frequencies have a decimal point in every language, as on radios; so have all other numbers.
    QLocale::setDefault(QLocale::c());

    MainWindow window;
    services.SetMainWidget(&window);
    window.announceModes();
    if (!commandLine.takesPictures()) { // Pictures show the program alone.
        new SignalNotifier(&window);    // The window owns them.
        new TrayStatus(&window);
    }
    window.show();
    QObject::connect(
        &window.session(), &Session::opened, &window,
        [&window, &commandLine, &dialogs] { serve(commandLine, window, dialogs.get()); },
        Qt::SingleShotConnection);
    // There is no splash: the window comes as fast.
    new FirstFrame(window, [&window, &commandLine] { open(commandLine, window); });
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    openStandardStreams();
    QCoreApplication::setApplicationName(QStringLiteral("bandmonitor"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BANDMONITOR_VERSION));
    const CommandLine commandLine = readCommandLine(argc, argv);
    if (commandLine.action != CommandLine::Run) {
        const bool failed = commandLine.action == CommandLine::Fail;
        print(failed ? stderr : stdout, commandLine.text);
        return failed ? 1 : 0;
    }
    if (!hasDisplay())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication::setDesktopFileName(QStringLiteral("bandmonitor"));
    CfgCenter::SetAppName(QStringLiteral("bandmonitor"));
    if (!commandLine.takesPictures()) {
        CfgCenter::SetConfigDir(commandLine.configFolder);
        return run(argc, argv, commandLine);
    }
    const ScreenshotEnvironment environment(commandLine.screenshotsFolder,
                                            commandLine.configFolder);
    return run(argc, argv, commandLine);
}
