// SPDX-License-Identifier: MIT
#include "trayicon.h"

#include "traypicture_p.h"

#include <guibase/notifications/popup/notificationoutlet.h>

#include <jtbase/qobjecthelpers.h>
#include <jtbase/windowsystem.h>
#include <trovappstartup/cfgcenter.h>

#include <QApplication>
#include <QEvent>
#include <QEventLoopLocker>
#include <QMenu>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

constexpr int defaultCheckInterval = 10'000; // milliseconds
constexpr int messageTime = 10'000;          // milliseconds
constexpr int checksUntilLost = 2;           // a panel that starts anew is away for a moment
constexpr qsizetype longestDetails = 150;    // characters; desktops cut longer tool tips
constexpr const char* explainedKey = "TrayExplained";

using Windows = QList<QPointer<QWidget>>;

bool isAnyVisible(const Windows& windows)
{
    return std::any_of(windows.begin(), windows.end(), [](const QPointer<QWidget>& window) {
        return window != nullptr && window->isVisible();
    });
}

/// A closed window gets a new native one, which the window manager places as it likes unless it is
/// told where.
void keepPlace(QWidget& window)
{
    const QRect place = window.geometry();
    const bool isNormal = !(window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen));
    if (isNormal && WindowSystem::placesWindows() &&
        QGuiApplication::screenAt(place.center()) != nullptr)
        window.setGeometry(place);
}

} // namespace

class TrayIconPrivate
{
public:
    explicit TrayIconPrivate(TrayIcon& owner);

    void buildMenu();
    void refresh();
    void watchWindow(QWidget& window);
    void updateHold();
    void settle();
    void hideSatellites();
    void watchTray();
    void checkTray();
    void explainOnce();

    TrayIcon& q;
    QSystemTrayIcon tray;
    QMenu menu;
    QAction* beforeQuit = nullptr;
    QIcon icon;
    TrayState state = TrayState::Idle;
    QString details;
    bool isWanted = false; ///< By show().
    bool staysInTray = false;
    Windows windows;
    Windows closedLast; ///< In the order in which they were closed.
    Windows satellites; ///< Of these, such as floating docks; hidden with them.
    /// Keeps the application alive without a window.
    std::unique_ptr<QEventLoopLocker> hold;
    QTimer settleTimer;
    QTimer checkTimer;
    int timesMissed = 0;
};

TrayIconPrivate::TrayIconPrivate(TrayIcon& owner)
    : q(owner)
    , icon(QGuiApplication::windowIcon())
{
    settleTimer.setSingleShot(true);
    settleTimer.setInterval(0);
    settleTimer.callOnTimeout(&q, [this] { settle(); });
    checkTimer.setInterval(defaultCheckInterval);
    checkTimer.callOnTimeout(&q, [this] { checkTray(); });
    buildMenu();
    QObject::connect(
        &tray, &QSystemTrayIcon::activated, &q, [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
                q.showWindows();
        });
    QObject::connect(&tray, &QSystemTrayIcon::messageClicked, &q, &TrayIcon::showWindows);
}

void TrayIconPrivate::buildMenu()
{
    QAction* open = menu.addAction(TrayIcon::tr("&Open"), &q, &TrayIcon::showWindows);
    menu.setDefaultAction(open);
    menu.addSeparator();
    beforeQuit = menu.addSeparator();
    // Queued: the menu must not be destroyed while it is at work.
    QObject::connect(menu.addAction(TrayIcon::tr("&Quit")), &QAction::triggered, qApp,
                     &QCoreApplication::quit, Qt::QueuedConnection);
    tray.setContextMenu(&menu);
}

void TrayIconPrivate::refresh()
{
    tray.setIcon(TrayPicture::make(icon, state));
    tray.setToolTip(q.toolTip());
}

void TrayIconPrivate::watchWindow(QWidget& window)
{
    windows << &window;
    new QObjectHelpers::EventFilter(
        &window, [this, guard = QPointer(&settleTimer)](QObject* watched, const QEvent* event) {
            if (guard == nullptr)
                return false;
            if (event->type() == QEvent::Close) {
                updateHold(); // The tray may have come or gone.
            } else if (event->spontaneous()) {
                return false; // minimized or restored
            } else if (event->type() == QEvent::Hide) {
                auto* hidden = static_cast<QWidget*>(watched);
                closedLast.removeAll(hidden);
                closedLast << hidden;
                settleTimer.start();
            } else if (event->type() == QEvent::Show) {
                checkTimer.stop();
                settleTimer.start();
            }
            return false;
        });
    QObject::connect(&window, &QObject::destroyed, &q, [this, gone = &window] {
        // Guarded pointers still lead to it.
        windows.removeAll(gone);
        closedLast.removeAll(gone);
        updateHold();
    });
    updateHold();
}

void TrayIconPrivate::updateHold()
{
    const bool holds = staysInTray && !windows.isEmpty() && q.isVisible();
    if (!holds) {
        hold.reset();
    } else if (hold == nullptr) {
        hold = std::make_unique<QEventLoopLocker>();
        if (!isAnyVisible(windows)) // a program that starts in the tray
            watchTray();
    }
}

/// Once all windows have closed that are closed together.
void TrayIconPrivate::settle()
{
    if (isAnyVisible(windows)) {
        closedLast.clear();
        const Windows waiting = std::exchange(satellites, {});
        for (const QPointer<QWidget>& satellite : waiting) {
            if (satellite != nullptr)
                satellite->show();
        }
        return;
    }
    if (hold == nullptr || closedLast.isEmpty() || checkTimer.isActive())
        return;
    watchTray();
    hideSatellites();
    explainOnce();
    Q_EMIT q.windowsClosed();
}

/// Not every window manager takes them away with the window that they belong to.
void TrayIconPrivate::hideSatellites()
{
    for (const QPointer<QWidget>& window : std::as_const(closedLast)) {
        const QList<QWidget*> owned =
            window != nullptr ? window->findChildren<QWidget*>() : QList<QWidget*>();
        for (QWidget* each : owned) {
            if (each->isWindow() && each->isVisible())
                satellites << each;
        }
    }
    for (const QPointer<QWidget>& satellite : std::as_const(satellites)) {
        if (satellite != nullptr)
            satellite->hide();
    }
}

/// While no window is open.
void TrayIconPrivate::watchTray()
{
    timesMissed = 0;
    checkTimer.start();
}

void TrayIconPrivate::checkTray()
{
    timesMissed = q.isTrayThere() ? 0 : timesMissed + 1;
    if (timesMissed < checksUntilLost)
        return;
    q.showWindows();
    updateHold();
}

/// Who closes a window for the first time may think that the application has ended.
void TrayIconPrivate::explainOnce()
{
    ICfg& settings = *CfgCenter::GetAppCfg(SettingsView);
    const QString key = QString::fromLatin1(explainedKey);
    if (settings.GetBool(key))
        return;
    settings.SetBool(key, true);
    q.showMessage(QGuiApplication::applicationDisplayName(),
                  TrayIcon::tr("It goes on in the background. A click on its icon opens the window "
                               "again; \"Quit\" in the menu of the icon ends it."));
}

TrayIcon::TrayIcon(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<TrayIconPrivate>(*this))
{
    d->refresh();
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::setIcon(const QIcon& icon)
{
    d->icon = icon;
    d->refresh();
}

QIcon TrayIcon::stateIcon(const QIcon& icon, TrayState state)
{
    return TrayPicture::make(icon, state);
}

QString TrayIcon::stateName(TrayState state)
{
    switch (state) {
    case TrayState::Idle:
        return tr("Idle");
    case TrayState::Running:
        return tr("Running");
    case TrayState::Warning:
        return tr("Warning");
    case TrayState::Fault:
        return tr("Fault");
    }
    return {};
}

TrayState TrayIcon::state() const
{
    return d->state;
}

void TrayIcon::setState(TrayState state, const QString& details)
{
    if (state == d->state && details == d->details)
        return;
    const bool isNewState = state != d->state;
    d->state = state;
    d->details = details;
    if (isNewState)
        d->refresh();
    else
        d->tray.setToolTip(toolTip());
}

QString TrayIcon::toolTip() const
{
    QString text =
        QGuiApplication::applicationDisplayName() + QLatin1Char('\n') + stateName(d->state);
    if (d->details.size() > longestDetails)
        text += QStringLiteral(": %1…").arg(d->details.left(longestDetails - 1));
    else if (!d->details.isEmpty())
        text += QStringLiteral(": ") + d->details;
    return text;
}

void TrayIcon::show()
{
    d->isWanted = true;
    placeInTray(true);
    NotificationOutlet::set(*this,
                            [this](const QString& title, const QString& text, const QIcon& icon) {
                                return showMessage(title, text, icon);
                            });
    d->updateHold();
}

void TrayIcon::hide()
{
    if (d->hold != nullptr && !isAnyVisible(d->windows))
        showWindows();
    d->isWanted = false;
    placeInTray(false);
    d->updateHold();
}

bool TrayIcon::isVisible() const
{
    return d->isWanted && isTrayThere();
}

QMenu* TrayIcon::menu() const
{
    return &d->menu;
}

void TrayIcon::addAction(QAction* action)
{
    d->menu.insertAction(d->beforeQuit, action);
}

void TrayIcon::addWindow(QWidget* window)
{
    if (window != nullptr && !d->windows.contains(window))
        d->watchWindow(*window);
}

void TrayIcon::setStayingInTray(bool stays)
{
    d->staysInTray = stays;
    d->updateHold();
}

bool TrayIcon::isStayingInTray() const
{
    return d->staysInTray;
}

void TrayIcon::setTrayCheckInterval(int milliseconds)
{
    d->checkTimer.setInterval(milliseconds);
}

bool TrayIcon::showMessage(const QString& title, const QString& text, const QIcon& icon)
{
    if (!isVisible())
        return false;
    sendMessage(title, text, icon);
    return true;
}

void TrayIcon::showWindows()
{
    const bool wereAllClosed = !isAnyVisible(d->windows);
    Windows wanted = wereAllClosed ? d->closedLast : d->windows;
    if (wanted.isEmpty() && !d->windows.isEmpty())
        wanted << d->windows.first(); // a program that started in the tray
    for (const QPointer<QWidget>& window : std::as_const(wanted)) {
        if (window == nullptr || (!wereAllClosed && !window->isVisible()))
            continue;
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        if (d->closedLast.contains(window))
            keepPlace(*window);
        window->show();
        if (window == nullptr)
            continue;
        window->raise();
        window->activateWindow();
    }
    if (wereAllClosed && !wanted.isEmpty())
        Q_EMIT windowsShown();
}

bool TrayIcon::isTrayThere() const
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void TrayIcon::placeInTray(bool isPlaced)
{
    // Elsewhere a tray that comes later is never found, and the toolkit warns.
    if (isPlaced && !isTrayThere() && QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    d->tray.setVisible(isPlaced);
}

void TrayIcon::sendMessage(const QString& title, const QString& text, const QIcon& icon)
{
    d->tray.showMessage(title, text, icon, messageTime);
}
