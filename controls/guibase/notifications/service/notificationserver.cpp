// SPDX-License-Identifier: MIT
#include "notificationserver.h"

#include "notificationconnection.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

namespace {

/// Without file descriptors a listening socket goes deaf; time enough for some to come free.
constexpr int deafTime = 500; // milliseconds
/// So much is sent without waiting for the end of the turn.
constexpr qsizetype largestBatch = 256 * NotificationMessage::size;

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
    sendPending();
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
    if (m_pending.isEmpty())
        QMetaObject::invokeMethod(this, &NotificationServer::sendPending, Qt::QueuedConnection);
    stamped.appendTo(m_pending);
    if (m_pending.size() >= largestBatch)
        sendPending();
    Q_EMIT published(stamped);
}

void NotificationServer::sendPending()
{
    const QByteArray bytes = std::exchange(m_pending, {});
    if (bytes.isEmpty())
        return;
    for (NotificationConnection* client : std::as_const(m_clients))
        client->send(bytes);
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
    sendPending(); // The greeting holds it already.
    greet(*client);
    m_clients.insert(owner, client);
}

void NotificationServer::greet(NotificationConnection& client) const
{
    const QList<NotificationStack::Entry>& entries = m_stack.entries();
    QByteArray bytes;
    bytes.reserve((entries.size() + 1) * NotificationMessage::size);
    for (const NotificationStack::Entry& entry : entries)
        NotificationMessage{NotificationMessage::Add, entry.id, entry.height}.appendTo(bytes);
    NotificationMessage{NotificationMessage::Connected, 0, 0, m_stack.hash()}.appendTo(bytes);
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
