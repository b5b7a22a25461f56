// SPDX-License-Identifier: MIT
#include "notifications.h"

#include "desktopnotifier_p.h"
#include "historydialog_p.h"
#include "notificationoutlet.h"
#include "popuparranger_p.h"
#include "popupplacer_p.h"
#include "standardnotification.h"

#include <guibase/notifications/service/notificationservice.h>

#include <jtbase/qobjecthelpers.h>

#include <QApplication>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QSet>
#include <QStyle>
#include <QTimer>
#include <QUuid>

#include <algorithm>

namespace {

constexpr qsizetype historySize = 100;

NotificationSettings serviceSettings;
Notifications::Placement wantedPlacement = Notifications::Placement::Automatic;

quint64 generateUniqueId()
{
    const auto hash = [] { return static_cast<quint32>(qHash(QUuid::createUuid().toString())); };
    const quint64 low = hash();
    return quint64{hash()} << 32 | low;
}

QPixmap styleIcon(QStyle::StandardPixmap which)
{
    const QStyle* style = QApplication::style();
    return style->standardIcon(which).pixmap(style->pixelMetric(QStyle::PM_MessageBoxIconSize));
}

bool isUnusedEscape(const QObject* watched, const QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    const auto* window = static_cast<const QWidget*>(watched);
    // A key comes to a window only when the widgets in it have no use for it. Dialogs have one.
    return window->isWindow() && window->windowType() != Qt::Dialog &&
           window->windowType() != Qt::Popup &&
           static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape;
}

} // namespace

class NotificationsPrivate
{
public:
    explicit NotificationsPrivate(Notifications& owner)
        : service(serviceSettings)
        , arranger(PopupPlacer::placementFor(wantedPlacement))
    {
        // Whatever comes within one turn of the event loop is arranged once.
        layoutTimer.setSingleShot(true);
        layoutTimer.setInterval(0);
        layoutTimer.callOnTimeout(&owner, [this] { arrange(); });
        const auto arrangeSoon = [this] { layoutTimer.start(); };
        QObject::connect(&service, &NotificationService::stackChanged, &owner, arrangeSoon);
        QObject::connect(&arranger, &PopupArranger::changed, &owner, arrangeSoon);
        QObject::connect(&arranger, &PopupArranger::moreWanted, &owner,
                         [] { Notifications::showHistory(); });
        service.start();
    }

    static StandardNotification* show(const QPixmap& icon, const QString& title,
                                      const QString& text, int timeout,
                                      Notifications::Buttons buttons,
                                      const QColor& color = StandardNotification::defaultColor());
    void arrange();
    void forget(const QObject* widget);
    quint64 idOf(const QObject* widget) const;
    void record(const QWidget& widget);
    void watchEscape();
    void closeNewest();

    static Notifications* current;

    NotificationService service;
    PopupArranger arranger;
    DesktopNotifier desktop;
    QMap<quint64, QPointer<QWidget>> popups;
    QMap<const QObject*, quint64> ids;
    QSet<quint64> toldToDesktop;
    QSet<const QObject*> refusing; ///< To close, perhaps.
    QList<NotificationRecord> history;
    QPointer<HistoryDialog> dialog;
    QTimer layoutTimer;
    std::unique_ptr<QObjectHelpers::EventFilter> escapeFilter;
};

Notifications* NotificationsPrivate::current = nullptr;

StandardNotification* NotificationsPrivate::show(const QPixmap& icon, const QString& title,
                                                 const QString& text, int timeout,
                                                 Notifications::Buttons buttons,
                                                 const QColor& color)
{
    if (Notifications::instance() == nullptr)
        return nullptr;
    auto* popup = new StandardNotification;
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setColor(color);
    popup->setIcon(icon);
    popup->setTitle(title);
    popup->setText(text);
    popup->setButtons(buttons);
    Notifications::notify(popup);
    if (timeout >= 1)
        QTimer::singleShot(timeout, popup, &QWidget::close);
    return popup;
}

void NotificationsPrivate::arrange()
{
    if (arranger.arrange(service.stack(), popups))
        return;
    // There is no place of our own; the tray icon or the desktop's service may have one.
    for (auto popup = popups.cbegin(); popup != popups.cend(); ++popup) {
        if (popup.value() == nullptr || toldToDesktop.contains(popup.key()))
            continue;
        toldToDesktop.insert(popup.key());
        const QWidget& widget = *popup.value();
        const QString text = widget.accessibleDescription();
        if (!NotificationOutlet::send(widget.windowTitle(), text, widget.windowIcon()))
            desktop.notify(widget.windowTitle(), text, widget.windowIcon());
    }
}

void NotificationsPrivate::forget(const QObject* widget)
{
    const quint64 id = ids.take(widget);
    if (id == 0)
        return;
    popups.remove(id);
    toldToDesktop.remove(id);
    service.remove(id);
    watchEscape();
    layoutTimer.start();
}

quint64 NotificationsPrivate::idOf(const QObject* widget) const
{
    return ids.value(widget, 0);
}

void NotificationsPrivate::record(const QWidget& widget)
{
    history.append(
        {QDateTime::currentDateTime(), widget.windowTitle(), widget.accessibleDescription()});
    if (history.size() > historySize)
        history.removeFirst();
    if (dialog != nullptr)
        dialog->setRecords(history);
}

void NotificationsPrivate::watchEscape()
{
    if (popups.isEmpty())
        escapeFilter.reset();
    else if (escapeFilter == nullptr)
        escapeFilter = std::make_unique<QObjectHelpers::EventFilter>(
            qApp, [this](const QObject* watched, const QEvent* event) {
                if (isUnusedEscape(watched, event))
                    closeNewest();
                return false;
            });
}

void NotificationsPrivate::closeNewest()
{
    const auto& entries = service.stack().entries();
    for (auto entry = entries.crbegin(); entry != entries.crend(); ++entry) {
        const QPointer<QWidget> popup = popups.value(entry->id);
        if (popup == nullptr || !popup->isVisible())
            continue;
        // From the event loop: the filter that called must not go while it is at work.
        QMetaObject::invokeMethod(popup, &QWidget::close, Qt::QueuedConnection);
        return;
    }
}

Notifications::Notifications()
    : d(std::make_unique<NotificationsPrivate>(*this))
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, &Notifications::cleanup);
}

Notifications::~Notifications()
{
    if (NotificationsPrivate::current == this)
        NotificationsPrivate::current = nullptr;
    delete d->dialog;
    for (auto popup = d->popups.cbegin(); popup != d->popups.cend(); ++popup) {
        if (*popup == nullptr)
            continue;
        (*popup)->removeEventFilter(this);
        (*popup)->disconnect(this);
        if ((*popup)->testAttribute(Qt::WA_DeleteOnClose))
            delete *popup;
    }
}

Notifications* Notifications::instance()
{
    Notifications*& current = NotificationsPrivate::current;
    if (current == nullptr && qobject_cast<QApplication*>(qApp) != nullptr &&
        !QCoreApplication::closingDown()) {
        // For a program that ends without its event loop.
        static const bool isRegistered =
            (qAddPostRoutine([] { delete NotificationsPrivate::current; }), true);
        Q_UNUSED(isRegistered)
        current = new Notifications;
    }
    return current;
}

StandardNotification* Notifications::notify(const QPixmap& icon, const QString& title,
                                            const QString& text, int timeout, Buttons buttons)
{
    return NotificationsPrivate::show(icon, title, text, timeout, buttons);
}

StandardNotification* Notifications::notify(const QString& title, const QString& text, int timeout,
                                            Buttons buttons)
{
    return notify(styleIcon(QStyle::SP_MessageBoxInformation), title, text, timeout, buttons);
}

StandardNotification* Notifications::warning(const QPixmap& icon, const QString& title,
                                             const QString& text, int timeout, Buttons buttons)
{
    return NotificationsPrivate::show(icon, title, text, timeout, buttons);
}

StandardNotification* Notifications::warning(const QString& title, const QString& text, int timeout,
                                             Buttons buttons)
{
    return warning(styleIcon(QStyle::SP_MessageBoxWarning), title, text, timeout, buttons);
}

StandardNotification* Notifications::critical(const QPixmap& icon, const QString& title,
                                              const QString& text, int timeout, Buttons buttons)
{
    return NotificationsPrivate::show(icon, title, text, timeout, buttons, Qt::red);
}

StandardNotification* Notifications::critical(const QString& title, const QString& text,
                                              int timeout, Buttons buttons)
{
    return critical(styleIcon(QStyle::SP_MessageBoxCritical), title, text, timeout, buttons);
}

void Notifications::notify(QWidget* widget)
{
    if (widget == nullptr || instance() == nullptr)
        return;
    if (const quint64 id = instance()->d->idOf(widget); id != 0) {
        instance()->d->service.raise(id);
    } else {
        instance()->add(widget);
        instance()->d->record(*widget);
    }
}

void Notifications::add(QWidget* widget)
{
    d->arranger.prepare(*widget);
    quint64 id = 0;
    while (id == 0 || d->service.stack().indexOf(id) >= 0 || d->popups.contains(id))
        id = generateUniqueId();
    d->popups.insert(id, widget);
    d->ids.insert(widget, id);
    widget->installEventFilter(this);
    widget->disconnect(this); // It may be here for the second time.
    connect(widget, &QObject::destroyed, this, [this](QObject* gone) {
        d->refusing.remove(gone);
        d->forget(gone);
    });
    d->watchEscape();
    d->service.add(id, widget->height());
}

void Notifications::cleanup()
{
    if (NotificationsPrivate::current == this)
        NotificationsPrivate::current = nullptr;
    const auto popups = d->popups;
    for (const QPointer<QWidget>& popup : popups) {
        if (popup != nullptr)
            popup->close();
    }
    deleteLater();
}

bool Notifications::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close)
        onClose(static_cast<QWidget*>(watched));
    else if (event->type() == QEvent::Hide)
        d->refusing.remove(watched);
    else if (event->type() == QEvent::Resize && d->idOf(watched) != 0)
        d->service.resize(d->idOf(watched), static_cast<QResizeEvent*>(event)->size().height());
    return false;
}

void Notifications::onClose(QWidget* widget)
{
    if (d->idOf(widget) == 0)
        return;
    d->forget(widget);
    if (!widget->isVisible())
        return;
    // A pop-up that refuses to close still needs a place. It hides by then when it agrees.
    d->refusing.insert(widget);
    QTimer::singleShot(0, widget, [self = QPointer(this), widget] {
        if (self != nullptr && NotificationsPrivate::current == self &&
            self->d->refusing.remove(widget) && self->d->idOf(widget) == 0)
            self->add(widget);
    });
}

QList<NotificationRecord> Notifications::history()
{
    return NotificationsPrivate::current != nullptr ? NotificationsPrivate::current->d->history
                                                    : QList<NotificationRecord>();
}

void Notifications::showHistory(QWidget* parent)
{
    if (instance() == nullptr)
        return;
    QPointer<HistoryDialog>& dialog = instance()->d->dialog;
    if (dialog == nullptr)
        dialog = new HistoryDialog(parent);
    dialog->setRecords(instance()->d->history);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void Notifications::setPort(quint16 port)
{
    serviceSettings.port = port;
}

void Notifications::setPlacement(Placement placement)
{
    wantedPlacement = placement;
}
