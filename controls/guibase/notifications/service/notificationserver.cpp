// SPDX-License-Identifier: MIT
#include "notificationserver.h"

#include "notificationconnection.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

namespace {

/// Without file descriptors a listening socket goes deaf; time enough for some to come free.
constexpr int deafTime = 500; // milliseconds

} // namespace

NotificationServer::NotificationServer(const NotificationSettings& settings,
                                       NotificationStack& stack, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_stack(stack)
    , m_server(new QTcpServer(this))
{
    m_stack.disown();
    m_server->setListenBacklogSize(static_cast<int>(settings.maximumClients));
    connect(m_server, &QTcpServer::newConnection, this, &NotificationServer::acceptClients);
    connect(m_server, &QTcpServer::acceptError, this,
            [this] { QTimer::singleShot(deafTime, m_server, &QTcpServer::resumeAccepting); });
}

NotificationServer::~NotificationServer()
{
    for (NotificationConnection* client : std::as_const(m_clients)) {
        client->disconnect(this);
        client->flush();
    }
}

bool NotificationServer::listen()
{
    return m_server->listen(QHostAddress(QHostAddress::LocalHost), m_settings.port);
}

quint16 NotificationServer::port() const
{
    return m_server->serverPort();
}

void NotificationServer::publish(const NotificationMessage& change, NotificationStack::Owner sender)
{
    m_stack.apply(change, sender);
    NotificationMessage stamped = change;
    stamped.listHash = m_stack.hash();
    const QByteArray bytes = stamped.encoded();
    for (NotificationConnection* client : std::as_const(m_clients))
        client->send(bytes);
    Q_EMIT published(stamped);
}

void NotificationServer::acceptClients()
{
    while (QTcpSocket* socket = m_server->nextPendingConnection()) {
        if (m_clients.size() < m_settings.maximumClients) {
            addClient(new NotificationConnection(socket, m_settings.sendBuffer,
                                                 m_settings.messagesPerSecond, this));
        } else {
            socket->abort();
            socket->deleteLater();
        }
    }
}

void NotificationServer::addClient(NotificationConnection* client)
{
    const NotificationStack::Owner owner = ++m_lastOwner;
    connect(client, &NotificationConnection::received, this,
            [this, owner](const NotificationMessage& message) { onReceived(owner, message); });
    connect(client, &NotificationConnection::closed, this, [this, owner] { onClosed(owner); });
    QTimer::singleShot(m_settings.answerTime, client, [client] {
        if (!client->hasSpoken())
            client->close();
    });
    greet(*client);
    m_clients.insert(owner, client);
}

void NotificationServer::greet(NotificationConnection& client) const
{
    QByteArray bytes;
    for (const NotificationStack::Entry& entry : m_stack.entries())
        bytes += NotificationMessage{NotificationMessage::Add, entry.id, entry.height}.encoded();
    bytes += NotificationMessage{NotificationMessage::Connected, 0, 0, m_stack.hash()}.encoded();
    client.send(bytes);
}

void NotificationServer::onReceived(NotificationStack::Owner owner,
                                    const NotificationMessage& message)
{
    const bool isNew = message.type == NotificationMessage::Add && m_stack.indexOf(message.id) < 0;
    const bool isTooMuch = isNew && (m_stack.entries().size() >= m_settings.maximumEntries ||
                                     m_stack.countOf(owner) >= m_settings.entriesPerProcess);
    if (isTooMuch || message.type == NotificationMessage::Connected)
        m_clients.value(owner)->close();
    else
        publish(message, owner);
}

void NotificationServer::onClosed(NotificationStack::Owner owner)
{
    m_clients.take(owner)->deleteLater();
    const QList<quint64> ids = m_stack.idsOf(owner);
    for (const quint64 id : ids)
        publish({NotificationMessage::Remove, id}, NotificationStack::nobody);
}
