// SPDX-License-Identifier: MIT
#pragma once

#include "notificationsettings.h"

#include <guibase/notifications/protocol/notificationstack.h>

#include <QByteArray>
#include <QHash>
#include <QObject>

class NotificationConnection;
class QTcpServer;

/// The one program at which all others meet: applies what its clients and this process itself send
/// to the list that counts, and tells every client each change.
class NotificationServer : public QObject
{
    Q_OBJECT
public:
    /// The stack must outlive the server; what it holds belongs to nobody at first.
    NotificationServer(const NotificationSettings& settings, NotificationStack& stack,
                       QObject* parent = nullptr);
    ~NotificationServer() override;

    /// False when another program has the port.
    bool listen();
    /// The port; what the system chose when the settings leave that to it by 0.
    quint16 port() const;
    qsizetype clientCount() const { return m_clients.size(); }
    /// Applies a change of `sender` (nobody: this process) and sends it to every client. The
    /// changes of one turn of the event loop leave together.
    void publish(const NotificationMessage& change, NotificationStack::Owner sender);

Q_SIGNALS:
    /// A change has been applied, whoever made it.
    void published(const NotificationMessage& change);

private:
    void acceptClients();
    void addClient(NotificationConnection* client);
    void sendPending();
    void greet(NotificationConnection& client) const;
    void onReceived(NotificationStack::Owner owner, const NotificationMessage& message);
    void onClosed(NotificationStack::Owner owner);

    const NotificationSettings m_settings;
    NotificationStack& m_stack;
    QTcpServer* m_server;                                               // a child
    QHash<NotificationStack::Owner, NotificationConnection*> m_clients; // children
    QByteArray m_pending;
    NotificationStack::Owner m_lastOwner = NotificationStack::nobody;
};
