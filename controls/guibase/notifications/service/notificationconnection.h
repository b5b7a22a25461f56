// SPDX-License-Identifier: MIT
#pragma once

#include "notificationsettings.h"

#include <guibase/notifications/protocol/notificationmessage.h>

#include <QElapsedTimer>
#include <QObject>

class QTcpSocket;

/// One end of a connection between two programs: cuts the bytes into messages, and closes on a
/// broken message and on a reader that does not read. What it holds of either direction is bounded,
/// and it reads a few messages at a time, so that a flood leaves the event loop its turns.
class NotificationConnection : public QObject
{
    Q_OBJECT
public:
    /// Takes the socket over. Reads at most `messagesPerSecond` on average; as many as come for 0,
    /// which is for a server's.
    NotificationConnection(QTcpSocket* socket, qint64 sendBuffer, int messagesPerSecond,
                           QObject* parent);
    ~NotificationConnection() override;

    /// Begins to connect to a port of this computer; connected() or closed() follows.
    void connectToPort(quint16 port);
    bool isConnected() const;
    /// True after the first valid message.
    bool hasSpoken() const { return m_hasSpoken; }
    /// Sends encoded messages. A reader that has left too much unread is closed instead.
    void send(const QByteArray& messages);
    /// Ends the connection at once; closed() follows from the event loop.
    void close();
    /// Hands over what has been sent but not left this process yet, as far as the system takes it.
    void flush();

Q_SIGNALS:
    /// The other end has accepted the connection.
    void connected();
    /// A whole message has come; one signal for each, in their order.
    void received(const NotificationMessage& message);
    /// The end, for whatever reason; comes once, and always from the event loop.
    void closed();

private:
    void readSome();
    void readLater(int milliseconds);
    /// How many messages may be read now.
    int allowance();

    QTcpSocket* m_socket; // a child
    const qint64 m_sendBuffer;
    const int m_messagesPerSecond;
    const int m_messagesPerTurn;
    double m_budget = 0;
    QElapsedTimer m_sinceRefill;
    bool m_isClosed = false;
    bool m_hasSpoken = false;
    bool m_isReadPlanned = false;
};
