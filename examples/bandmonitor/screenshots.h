// SPDX-License-Identifier: MIT
#pragma once

#include "pictures.h"

#include <QDir>
#include <QPixmap>
#include <QString>

#include <functional>

namespace bandmonitor {

class DialogCloser;
class MainWindow;

/// Works through the window as a user would and writes a picture of each stage: the window in its
/// modes, zoomed, with the panels in all their places, in other units and colours, with its menus
/// and dialogs open. The same recording gives the same pictures every time.
class ScreenshotSeries
{
public:
    /// `dialogs` closes the dialogs once their pictures are taken.
    ScreenshotSeries(MainWindow& window, DialogCloser& dialogs, const QString& folder);

    /// Takes all pictures of the recording that is open. False when one could not be written;
    /// failure() then tells which.
    bool run();
    const QString& failure() const { return m_failure; }

private:
    void takeMain();
    void takeZoom();
    void takeSignals();
    void takeModes();
    void takePanels();
    void takeUnits();
    void takeColors();
    void takeColorEditor();
    void takeReceiver();
    /// Calls the operation while the desktop is dark.
    void takeDark(const std::function<void()>& take);
    void takeMenus();
    void takeDialog(const QString& name, const char* slot, QObject* receiver);
    void takeMessage();
    /// The window with everything that lies on top of it.
    QPixmap picture() const;
    static void settle();
    void write(const QString& name);

    MainWindow& m_window;
    DialogCloser& m_dialogs;
    QDir m_folder;
    QString m_failure;
};

/// Fixed conditions for the pictures, to be made before the application object: a time zone one
/// hour east of UTC, wherever the computer is, and settings of their own instead of the user's.
/// Without `configFolder` the settings lie in a folder below `folder` and are removed in the end.
class ScreenshotEnvironment
{
public:
    ScreenshotEnvironment(const QString& folder, const QString& configFolder);
    ~ScreenshotEnvironment();
    Q_DISABLE_COPY_MOVE(ScreenshotEnvironment)

private:
    pictures::QuietPlatform m_quiet;
    QDir m_ownSettings;
    bool m_hasOwnSettings;
};

} // namespace bandmonitor
