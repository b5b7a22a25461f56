// SPDX-License-Identifier: MIT
// A small application that a test starts as a process of its own:
//     services_process <scenario> <configuration folder>
// It tells on its standard output what it found. A warning ends it, until the last destructor.
#include <guibase/services/guibase.h>

#include <jtbase/errorhandler.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>
#include <valueframework/valueselection.h>
#include <xmsgdlg/xmessagedialog.h>

#include <QApplication>
#include <QCloseEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QTextStream>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

void endOnWarning(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    // The offscreen platform says this about every window of a fixed size.
    const bool known = text.startsWith(QStringLiteral("This plugin does not support propagate"));
    if (type == QtInfoMsg || type == QtDebugMsg || known)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::abort();
}

template <typename Value>
void tell(const QString& what, const Value& value)
{
    QTextStream(stdout) << what << '=' << value << '\n';
    std::fflush(stdout);
}

/// The services come first and the application object later; the process only looks around.
int runEarly(int argc, char** argv)
{
    GuiBase& services = GuiBase::Instance();
    tell(QStringLiteral("resolution"), services.GetFrequencyResolution());
    const QApplication application(argc, argv);
    services.SetApplication(qApp);
    tell(QStringLiteral("font"), services.GetFontFamily().isEmpty() ? 0 : 1);
    return 0;
}

class StubbornWindow : public QWidget
{
protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

/// A day's work: everything that the services hold on to is in use when the process ends.
int runSession(int argc, char** argv, const QString& scenario)
{
    QApplication application(argc, argv);
    TrovApplication startUp;
    startUp.ShowSplash();
    ErrorHandler::SetMessageDlg(std::make_unique<XMessageDialog>());
    GuiBase& services = GuiBase::Instance();
    auto window = std::make_unique<QMainWindow>();
    services.SetMainWidget(window.get());
    window->menuBar()->addMenu(
        services.CreateHelpMenu(window.get(), QString(), nullptr, nullptr, nullptr, nullptr));
    services.AddHotKey(Qt::Key_F5, 0, window.get(), QString(), QString(), true, true);
    services.HideSplash();
    std::unique_ptr<StubbornWindow> other;
    if (scenario.contains(QStringLiteral("stubborn"))) {
        other = std::make_unique<StubbornWindow>();
        other->show();
    }
    tell(QStringLiteral("zone"), services.GetTimeZone()->GetCurrentIndex());
    tell(QStringLiteral("width"), window->width());

    QTimer::singleShot(0, &application, [&] {
        services.GetTimeZone()->SetCurrentIndex(0);
        window->resize(window->width() + 11, 300);
        if (scenario.startsWith(QStringLiteral("delete")))
            window.reset();
        else
            window->close();
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const QString scenario = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    qInstallMessageHandler(&endOnWarning);
    CfgCenter::SetConfigDir(QString::fromLocal8Bit(argc > 2 ? argv[2] : "."));
    CfgCenter::SetAppName(QStringLiteral("services"));
    if (scenario == QStringLiteral("early"))
        return runEarly(argc, argv);
    if (scenario == QStringLiteral("close twice") && runSession(argc, argv, scenario) != 0)
        return 1;
    if (scenario.startsWith(QStringLiteral("close")) ||
        scenario.startsWith(QStringLiteral("delete")))
        return runSession(argc, argv, scenario);
    return 2;
}
