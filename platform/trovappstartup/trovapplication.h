// SPDX-License-Identifier: MIT
#pragma once

#include <trovappstartup/trovappstartup_export.h>

#include <QObject>
#include <QPixmap>
#include <QString>

#include <memory>

class TrovApplicationPrivate;

/// The start-up object of an application: shows the splash screen and ends the application in good
/// order, however the end comes (event loop, desktop session, Terminate(), destructor, SIGTERM,
/// SIGINT or SIGHUP). When the X server or the compositor goes, it stores what there is. Made in
/// main() after the QApplication, as a local object; one per process.
class TROVAPPSTARTUP_EXPORT TrovApplication : public QObject
{
    Q_OBJECT
public:
    explicit TrovApplication(QObject* parent = nullptr);
    ~TrovApplication() override;

    /// Chooses X11 on desktops that have Wayland and X11, since only there programs may place their
    /// windows; to be called before the QApplication is made. Nothing when the user has chosen with
    /// QT_QPA_PLATFORM; "-platform" goes before, too. Programs that this one starts choose anew.
    static void ChooseWindowSystem();

    /// The object, or null before its construction and after its destruction.
    static TrovApplication* m_pThis;

    /// Shows the splash screen: the picture, or a plain panel with the application's name and
    /// version when the picture is null. The show time starts now.
    void ShowSplash(const QPixmap& picture = {});
    /// Shows `text` at the bottom of the splash screen; nothing without one.
    void Write2Splash(const QString& text);
    /// Shows that the program is at work until the next text, and lets the splash screen repaint.
    void SplashBusy();
    /// Takes the splash screen away; nothing without one.
    void HideSplash();
    bool IsSplashVisible() const;
    bool IsSplashBusy() const;
    QString GetSplashText() const;
    /// When the splash screen was last shown, in seconds since 1970-01-01 00:00 UTC; 0 if never.
    qint64 SplashShowTime() const;

    /// Runs the termination unless it has run already: CfgCenter::SaveAll(), then
    /// aboutToTerminate() of every termination target, then CfgCenter::Store().
    void Terminate();
    bool IsTerminated() const;

    /// Ends the program as soon as an event loop lets it. QCoreApplication::exec() is quit, also
    /// when it begins later; until then open dialogs are closed. Windows may refuse or ask the
    /// user, but after the grace period the program terminates and leaves all loops. One that runs
    /// without exec() and goes on for another grace period ends at once, with exit code 0.
    void RequestEnd();
    /// In milliseconds; counts for later requests. Default 3000.
    static void SetGracePeriod(int milliseconds);
    /// Closes the windows and ends QCoreApplication::exec(), also when a window refuses to close.
    /// False, with nothing done, when exec() does not run.
    static bool EndEventLoop();

private:
    friend class TrovApplicationPrivate;

    std::unique_ptr<TrovApplicationPrivate> d;
};
