// SPDX-License-Identifier: MIT
#pragma once

#include "notificationrecord.h"

#include <guibase/guibase_export.h>

#include <QDialogButtonBox>
#include <QList>
#include <QObject>

#include <memory>

class NotificationsPrivate;
class QPixmap;
class StandardNotification;

/// Shows small pop-ups, stacked at the lower right of the screen, in one stack with those of the
/// other programs on this computer. Pop-ups that do not fit are collapsed into one that says how
/// many more there are. Escape in a window that has no use for it closes the newest pop-up.
///
/// There is one service per process, made with the first pop-up and gone when the application is
/// about to quit, which closes its pop-ups. All operations belong to the GUI thread.
class GUIBASE_EXPORT Notifications : public QObject
{
    Q_OBJECT
public:
    /// Where pop-ups appear.
    enum class Placement {
        Automatic, ///< On the screen where the platform allows that, else in a window.
        OnScreen,  ///< On the screen with the active window.
        InWindow,  ///< Inside the active window, in a stack of this process alone.
    };

    /// The buttons of a pop-up.
    using Buttons = QFlags<QDialogButtonBox::StandardButton>;
    static constexpr QDialogButtonBox::StandardButton defaultButton = QDialogButtonBox::Close;

    /// Shows a pop-up with an icon; without one, with the style's icon for its kind. It closes
    /// itself after `timeout` milliseconds, and only by the user or the program when that is below
    /// 1. It is deleted when it closes. Null without an application object.
    static StandardNotification* notify(const QPixmap& icon, const QString& title,
                                        const QString& text, int timeout = 0,
                                        Buttons buttons = defaultButton);
    static StandardNotification* notify(const QString& title, const QString& text, int timeout = 0,
                                        Buttons buttons = defaultButton);
    static StandardNotification* warning(const QPixmap& icon, const QString& title,
                                         const QString& text, int timeout = 0,
                                         Buttons buttons = defaultButton);
    static StandardNotification* warning(const QString& title, const QString& text, int timeout = 0,
                                         Buttons buttons = defaultButton);
    /// The same in red.
    static StandardNotification* critical(const QPixmap& icon, const QString& title,
                                          const QString& text, int timeout = 0,
                                          Buttons buttons = defaultButton);
    static StandardNotification* critical(const QString& title, const QString& text,
                                          int timeout = 0, Buttons buttons = defaultButton);

    /// Shows any widget as a pop-up, at its own size; raises it when it is one already. It stays
    /// the caller's, and leaves the stack when it is closed or deleted. Null is ignored.
    static void notify(QWidget* widget);

    /// The last 100 pop-ups of this process, the newest last; also those not shown for want of
    /// room.
    static QList<NotificationRecord> history();
    /// Shows the history in a window of its own; the one that is open comes to the front.
    static void showHistory(QWidget* parent = nullptr);

    /// The port of this computer at which the programs meet; 59028 by default. Programs with
    /// different ports have separate stacks. Heeded when the service is made.
    static void setPort(quint16 port);
    /// Automatic by default. Heeded when the service is made.
    static void setPlacement(Placement placement);

    ~Notifications() override;
    /// Sees the pop-ups close and change their size; consumes nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    friend class NotificationsPrivate;
    Notifications();
    /// Null without an application object.
    static Notifications* instance();
    void add(QWidget* widget);
    void onClose(QWidget* widget);
    void cleanup();

    std::unique_ptr<NotificationsPrivate> d;
};
