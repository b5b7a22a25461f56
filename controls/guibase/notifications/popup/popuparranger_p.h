// SPDX-License-Identifier: MIT
#pragma once

#include "morepopup_p.h"
#include "notifications.h"

#include <guibase/notifications/protocol/notificationstack.h>

#include <QMap>
#include <QObject>
#include <QPointer>

#include <memory>

class PopupPlacer;

/// Puts the pop-ups of this process where the stack of all programs wants them, and one for those
/// that do not fit.
class PopupArranger : public QObject
{
    Q_OBJECT
public:
    using Popups = QMap<quint64, QPointer<QWidget>>;

    explicit PopupArranger(Notifications::Placement placement);
    ~PopupArranger() override;

    /// To be called before a pop-up is arranged first.
    void prepare(QWidget& popup);
    /// False, with all pop-ups hidden, when there is no place for any.
    bool arrange(const NotificationStack& stack, const Popups& popups);

Q_SIGNALS:
    /// The pop-ups should be arranged again.
    void changed();
    /// The user wants to see the pop-ups that are not shown.
    void moreWanted();

private:
    struct Slot
    {
        quint32 height;
        QPointer<QWidget> popup; ///< Null for one of another program.
    };
    QList<Slot> slotsOf(const NotificationStack& stack, const Popups& popups) const;
    void bring(QWidget& popup, const QRect& area, qint64 offset);

    std::unique_ptr<PopupPlacer> m_placer;
    QPointer<MorePopup> m_more; // A window can take it along.
};
