// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QPixmap>
#include <QString>
#include <QStringList>

class QWidget;

namespace bandmonitor {

class MainWindow;

/// Works through the window as a user would and writes a picture of each stage: "main.png",
/// "zoom.png", "signals.png", "measure.png", "plan.png", "panels-….png",
/// "units.png", "colors.png", "receiver.png", the open menus, the dialogs. The same recording gives the same content every time.
class ShotSeries
{
public:
    ShotSeries(MainWindow& window, const QString& folder);

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
    void takeReceiver();
    void takeMenus();
    void takeDialog(const QString& name, const char* slot, QObject* receiver);
    void takeMessage();
    /// The window with everything that lies on top of it.
    QPixmap picture() const;
    void write(const QString& name);
    /// Writes the picture as soon as a dialog is open, and closes that.
    void writeWhenDialogOpens(const QString& name);

    MainWindow& m_window;
    QDir m_folder;
    QString m_failure;
};

/// Fixed conditions for the pictures, to be made before the application object: a time zone one
/// hour east of UTC, wherever the computer is, and settings of their own instead of the user's.
/// Without `configFolder` these lie in a folder below `folder`, which goes with this object.
class ShotEnvironment
{
public:
    ShotEnvironment(const QString& folder, const QString& configFolder);
    ~ShotEnvironment();
    Q_DISABLE_COPY_MOVE(ShotEnvironment)

private:
    QDir m_ownSettings;
    bool m_hasOwnSettings;
};

} // namespace bandmonitor
