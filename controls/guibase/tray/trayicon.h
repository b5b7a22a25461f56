// SPDX-License-Identifier: MIT
#pragma once

#include "traystate.h"

#include <guibase/guibase_export.h>

#include <QIcon>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class QAction;
class QMenu;
class QWidget;
class TrayIconPrivate;

/// The application's icon in the tray of the desktop, with its state as a badge, a menu, and the
/// windows behind it: with setStayingInTray() the application goes on when the last one is closed,
/// and a click brings the windows back.
///
/// On a desktop without a tray nothing appears, and the application ends with its last window as it
/// does without this object. To be made and destroyed while there is a QApplication.
class GUIBASE_EXPORT TrayIcon : public QObject
{
    Q_OBJECT
public:
    /// Idle, and in the tray only after show().
    explicit TrayIcon(QObject* parent = nullptr);
    ~TrayIcon() override;

    /// The icon without a badge; the application's window icon at first. A null icon: a plain one.
    void setIcon(const QIcon& icon);
    /// The icon with the badge of the state, as it stands in the tray.
    static QIcon stateIcon(const QIcon& icon, TrayState state);
    /// The name of the state for users.
    static QString stateName(TrayState state);

    /// Idle without details at first. The tool tip gives the application's name, the state, and the
    /// details: one short plain text, of which 150 characters are shown.
    void setState(TrayState state, const QString& details = {});
    TrayState state() const;
    QString toolTip() const;

    /// Into the tray. On X11 the icon also waits for a tray that is not there yet.
    void show();
    /// Out of the tray. Hidden windows come back first, so that the application stays reachable.
    void hide();
    /// False before show(), and on a desktop without a tray.
    bool isVisible() const;

    /// The menu of the icon, owned by it: "Open", what was added, and "Quit".
    QMenu* menu() const;
    /// Puts an action, which is not owned, before "Quit".
    void addAction(QAction* action);

    /// A window that a click brings back; not owned. Windows that are closed with
    /// Qt::WA_DeleteOnClose do not come back, and do not keep the application alive.
    void addWindow(QWidget* window);
    /// Off by default. As long as the icon is visible, the application does not end with its last
    /// window then; QCoreApplication::quit() and the menu's "Quit" end it. Has no effect without
    /// windows of addWindow(). Should the tray go while no window is open, the windows come back.
    void setStayingInTray(bool stays);
    bool isStayingInTray() const;
    /// How often a lost tray is looked for while no window is open, in milliseconds; twice in a row
    /// it must be missing. Default 10000.
    void setTrayCheckInterval(int milliseconds);

    /// A message beside the icon for some seconds, of plain text; a click on it brings the windows
    /// back. False, with nothing shown, while the icon is not visible.
    ///
    /// Notifications come here by themselves when they find no window to appear in.
    bool showMessage(const QString& title, const QString& text, const QIcon& icon = {});

public Q_SLOTS:
    /// Brings back the windows that were closed last, together when they were closed together, with
    /// their floating docks. Open ones come to the front.
    void showWindows();

Q_SIGNALS:
    /// The last of the windows was closed, and the application goes on.
    void windowsClosed();
    /// Hidden windows were brought back.
    void windowsShown();

protected:
    /// Whether the desktop has a tray now.
    virtual bool isTrayThere() const;
    /// Puts the icon into the desktop's tray, or takes it out.
    virtual void placeInTray(bool isPlaced);
    /// Hands the message to the desktop.
    virtual void sendMessage(const QString& title, const QString& text, const QIcon& icon);

private:
    friend class TrayIconPrivate;

    std::unique_ptr<TrayIconPrivate> d;
};
